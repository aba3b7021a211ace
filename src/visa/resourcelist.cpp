#include "visa/resourcelist.h"

#include "visa/resourcename.h"
#include "visa/usbtmcdevices.h"
#include "visa/visaconfig.h"

#include <algorithm>
#include <cstdlib>
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
    for (const std::string& name : environmentResources())
        addUnique(list, name);
    std::lock_guard lock(configuredMutex);
    for (const std::string& name : configured)
        addUnique(list, name);
    return list;
}

} // namespace selvane::visa

void selvaneVisaSetConfiguredResources(const std::vector<std::string>& names)
{
    std::lock_guard lock(selvane::visa::configuredMutex);
    selvane::visa::configured = names;
}
