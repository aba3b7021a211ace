#pragma once
// What the program tells the VISA layer, and what it may ask of it, beyond the
// standard calls.

#include <string>
#include <vector>

// Network resources kept in the program's settings; our own resource list
// offers them beside the USB devices present and SELVANE_VISA_RESOURCES.
// A vendor library keeps its own list and ignores these.
void selvaneVisaSetConfiguredResources(const std::vector<std::string>& names);

// "builtin", or the path of the vendor library that the next viOpenDefaultRM uses.
std::string selvaneVisaImplementation();
