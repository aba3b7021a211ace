#include "visa/resourcelist.h"

#include "visa/resourcename.h"
#include "visa/usbtmcdevices.h"
#include "visa/visaconfig.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <mutex>

namespace selvane::visa {

namespace {

std::mutex configuredMutex;
std::vector<std::string> configured;

std::vector<std::string> environmentResources()
{
    std::vector<std::string> names;
    const char* text = std::getenv("SELVANE_VISA_RESOURCES");
    std::string_view rest = text ? text : "";
    while (!rest.empty()) {
        const size_t semicolon = rest.find(';');
        names.emplace_back(rest.substr(0, semicolon));
        rest = semicolon == std::string_view::npos ? std::string_view() : rest.substr(semicolon + 1);
    }
    return names;
}

std::vector<std::string> fileResources()
{
    std::vector<std::string> names;
    const std::string path = configurationPath();
    std::ifstream file(path.empty() ? std::string("/nonexistent") : path);
    std::string line;
    for (int lines = 0; lines < 10000 && std::getline(file, line); ++lines) {
        line = line.substr(0, line.find('#'));
        if (line.find_first_not_of(" \t\r") != std::string::npos) names.push_back(line);
    }
    return names;
}

// A ttyS node the kernel lists whether or not a UART is there; its port type 0 means none.
bool hasUart(const std::filesystem::path& node)
{
    std::ifstream type(node / "type");
    int value = 0;
    return type >> value && value != 0;
}

// Serial ports the kernel has a driver bound to; ASRL<n> is /dev/ttyS<n-1>, the others go by path.
std::vector<std::string> serialResources()
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/sys/class/tty", error)) {
        const std::string node = entry.path().filename().string();
        if (!std::filesystem::exists(entry.path() / "device" / "driver", error)) continue;
        const bool uart = node.rfind("ttyS", 0) == 0 && node.size() > 4 && node.size() < 8 &&
                          node.find_first_not_of("0123456789", 4) == std::string::npos;
        if (uart && hasUart(entry.path()))
            names.push_back("ASRL" + std::to_string(std::stoul(node.substr(4)) + 1) + "::INSTR");
        else if (node.rfind("ttyUSB", 0) == 0 || node.rfind("ttyACM", 0) == 0)
            names.push_back("ASRL/dev/" + node + "::INSTR");
    }
    std::sort(names.begin(), names.end());
    return names;
}

void addUnique(std::vector<std::string>& list, const std::string& name)
{
    const auto parsed = parseResourceName(name);
    if (!parsed) return;
    std::string text = parsed->canonical();
    const bool known = std::any_of(list.begin(), list.end(),
                                   [&](const std::string& other) { return equalsIgnoringCase(other, text); });
    if (!known) list.push_back(std::move(text));
}

} // namespace

std::vector<std::string> listResources(const std::string& usbClassDir)
{
    std::vector<std::string> list;
    for (const UsbtmcDevice& device : listUsbtmcDevices(usbClassDir))
        addUnique(list, device.resourceName());
    for (const std::string& name : serialResources())
        addUnique(list, name);
    for (const std::string& name : environmentResources())
        addUnique(list, name);
    for (const std::string& name : fileResources())
        addUnique(list, name);
    std::lock_guard lock(configuredMutex);
    for (const std::string& name : configured)
        addUnique(list, name);
    return list;
}

std::string configurationPath()
{
    if (const char* path = std::getenv("SELVANE_VISA_CONF"); path && *path) return path;
    if (const char* config = std::getenv("XDG_CONFIG_HOME"); config && *config)
        return std::string(config) + "/selvane/visa.conf";
    if (const char* home = std::getenv("HOME"); home && *home)
        return std::string(home) + "/.config/selvane/visa.conf";
    return {};
}

} // namespace selvane::visa

void selvaneVisaSetConfiguredResources(const std::vector<std::string>& names)
{
    std::lock_guard lock(selvane::visa::configuredMutex);
    selvane::visa::configured = names;
}
