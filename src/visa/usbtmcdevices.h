#pragma once
// The USBTMC interfaces the Linux usbtmc driver has bound, read from sysfs:
// <class dir>/usbtmcN/device is the interface directory (bInterfaceNumber),
// its parent the USB device (idVendor, idProduct, serial, ...).

#include "visa/resourcename.h"

#include <cstdint>
#include <string>
#include <vector>

namespace selvane::visa {

inline constexpr const char* UsbmiscClassDir = "/sys/class/usbmisc";

struct UsbtmcDevice {
    std::string node; // "usbtmc0": the device file is /dev/<node>
    uint16_t vendorId = 0;
    uint16_t productId = 0;
    std::string serial;
    int interfaceNumber = 0;
    std::string manufacturer;
    std::string product;

    // "USB0::0x1234::0x5678::SERIAL::INSTR", the interface number only when it is not 0.
    std::string resourceName() const;
};

// In node order; entries whose sysfs data can't be read are left out.
std::vector<UsbtmcDevice> listUsbtmcDevices(const std::string& classDir = UsbmiscClassDir);

// The device a USB resource name means: matching ids and serial (ignoring case),
// and the given interface or else the lowest-numbered one. Null when absent.
const UsbtmcDevice* findUsbtmcDevice(const std::vector<UsbtmcDevice>& devices, const ResourceName& name);

} // namespace selvane::visa
