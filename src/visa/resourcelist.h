#pragma once
// What viFindRsrc of our own layer looks through: the USBTMC devices present,
// then the network resources named in SELVANE_VISA_RESOURCES (";"-separated),
// then those the program configured. Malformed names and repeats are left out.

#include <string>
#include <vector>

namespace selvane::visa {

std::vector<std::string> listResources(const std::string& usbClassDir);

} // namespace selvane::visa
