#include "visa/usbtmcdevices.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>

namespace selvane::visa {

namespace {

namespace fs = std::filesystem;

std::string firstLine(const fs::path& file)
{
    std::ifstream in(file);
    std::string line;
    std::getline(in, line);
    while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
        line.pop_back();
    return line;
}

// sysfs prints these numbers in hexadecimal without "0x".
std::optional<unsigned> hexNumber(const fs::path& file, unsigned maximum)
{
    const std::string text = firstLine(file);
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.empty() || error != std::errc() || end != text.data() + text.size() || value > maximum)
        return std::nullopt;
    return value;
}

std::optional<UsbtmcDevice> readDevice(const fs::directory_entry& entry)
{
    std::error_code error;
    const fs::path interface = fs::canonical(entry.path() / "device", error);
    if (error) return std::nullopt;
    const fs::path usbDevice = interface.parent_path();
    const auto vendor = hexNumber(usbDevice / "idVendor", 0xFFFF);
    const auto product = hexNumber(usbDevice / "idProduct", 0xFFFF);
    const auto number = hexNumber(interface / "bInterfaceNumber", 0xFF);
    if (!vendor || !product || !number) return std::nullopt;
    UsbtmcDevice device;
    device.node = entry.path().filename().string();
    device.vendorId = uint16_t(*vendor);
    device.productId = uint16_t(*product);
    device.interfaceNumber = int(*number);
    device.serial = firstLine(usbDevice / "serial");
    device.manufacturer = firstLine(usbDevice / "manufacturer");
    device.product = firstLine(usbDevice / "product");
    return device;
}

// "usbtmc10" after "usbtmc9".
bool nodeOrder(const UsbtmcDevice& a, const UsbtmcDevice& b)
{
    return a.node.size() != b.node.size() ? a.node.size() < b.node.size() : a.node < b.node;
}

} // namespace

std::string UsbtmcDevice::resourceName() const
{
    ResourceName name;
    name.interface = Interface::Usb;
    name.vendorId = vendorId;
    name.productId = productId;
    name.serial = serial;
    name.interfaceNumber = interfaceNumber != 0 ? interfaceNumber : -1;
    return name.canonical();
}

std::vector<UsbtmcDevice> listUsbtmcDevices(const std::string& classDir)
{
    std::vector<UsbtmcDevice> devices;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(classDir, error)) {
        if (entry.path().filename().string().rfind("usbtmc", 0) != 0) continue;
        if (auto device = readDevice(entry)) devices.push_back(std::move(*device));
    }
    std::sort(devices.begin(), devices.end(), nodeOrder);
    return devices;
}

const UsbtmcDevice* findUsbtmcDevice(const std::vector<UsbtmcDevice>& devices, const ResourceName& name)
{
    const UsbtmcDevice* best = nullptr;
    for (const UsbtmcDevice& device : devices) {
        if (device.vendorId != name.vendorId || device.productId != name.productId ||
            !equalsIgnoringCase(device.serial, name.serial))
            continue;
        if (name.interfaceNumber >= 0 ? device.interfaceNumber == name.interfaceNumber
                                      : !best || device.interfaceNumber < best->interfaceNumber)
            best = &device;
    }
    return best;
}

} // namespace selvane::visa
