#pragma once
// What viFindRsrc of our own layer looks through: the USBTMC devices present,
// the serial ports, then the network resources named in SELVANE_VISA_RESOURCES
// (";"-separated), in the configuration file (one a line, "#" starts a comment:
// $SELVANE_VISA_CONF, else $XDG_CONFIG_HOME/selvane/visa.conf, else
// ~/.config/selvane/visa.conf), then those the program configured. Malformed
// names and repeats are left out.

#include <string>
#include <vector>

namespace selvane::visa {

std::vector<std::string> listResources(const std::string& usbClassDir);

// The path of the configuration file, whether or not it exists; "" when no home is known.
std::string configurationPath();

} // namespace selvane::visa
