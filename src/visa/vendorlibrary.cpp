#include "visa/vendorlibrary.h"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <map>
#include <memory>
#include <mutex>

namespace selvane::visa {

namespace {

// File names vendor VISA libraries are installed under on Linux; the shared IVI router first.
constexpr const char* SystemLibraries[] = {"libivivisa.so",  "libvisa.so",   "libvisa.so.0",
                                           "libktvisa32.so", "libiovisa.so", "librsvisa.so"};

template <typename Function> bool bind(void* library, const char* symbol, Function& function)
{
    function = reinterpret_cast<Function>(::dlsym(library, symbol));
    return function != nullptr;
}

std::unique_ptr<VisaApi> bindAll(void* library)
{
    auto api = std::make_unique<VisaApi>();
    const bool complete = bind(library, "viOpenDefaultRM", api->openDefaultRM) &&
                          bind(library, "viFindRsrc", api->findRsrc) &&
                          bind(library, "viFindNext", api->findNext) && bind(library, "viOpen", api->open) &&
                          bind(library, "viClose", api->close) && bind(library, "viRead", api->read) &&
                          bind(library, "viWrite", api->write) && bind(library, "viClear", api->clear) &&
                          bind(library, "viSetAttribute", api->setAttribute) &&
                          bind(library, "viGetAttribute", api->getAttribute);
    return complete ? std::move(api) : nullptr;
}

bool isSet(const char* name)
{
    return std::getenv(name) && *std::getenv(name);
}

} // namespace

// Libraries stay loaded for the run: sessions of theirs may outlive any one caller.
const VisaApi* loadVisaLibrary(const std::string& path)
{
    static std::mutex mutex;
    static std::map<std::string, std::unique_ptr<VisaApi>> loaded;
    std::lock_guard lock(mutex);
    if (const auto it = loaded.find(path); it != loaded.end()) return it->second.get();
    void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) return nullptr;
    auto api = bindAll(library);
    if (!api) {
        ::dlclose(library);
        return nullptr;
    }
    return loaded.emplace(path, std::move(api)).first->second.get();
}

Implementation currentImplementation()
{
    const Implementation builtin{&builtinApi(), "builtin"};
    if (isSet("SELVANE_VISA") && std::strcmp(std::getenv("SELVANE_VISA"), "builtin") == 0) return builtin;
    if (isSet("SELVANE_VISA_LIBRARY")) {
        const std::string path = std::getenv("SELVANE_VISA_LIBRARY");
        return Implementation{loadVisaLibrary(path), path};
    }
    for (const char* name : SystemLibraries)
        if (const VisaApi* api = loadVisaLibrary(name)) return Implementation{api, name};
    return builtin;
}

} // namespace selvane::visa
