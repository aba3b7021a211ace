#pragma once
// Which implementation the front end forwards to: our own when SELVANE_VISA
// is "builtin"; else the library SELVANE_VISA_LIBRARY names; else the first
// vendor VISA library the system has; else our own.

#include "visa/visaapi.h"

#include <string>

namespace selvane::visa {

struct Implementation {
    const VisaApi* api = nullptr; // null: the named library could not be used
    std::string name;             // "builtin" or the library's path
};

Implementation currentImplementation();

// The library's ten functions, loaded once and kept; null when it or one of them is missing.
const VisaApi* loadVisaLibrary(const std::string& path);

} // namespace selvane::visa
