#pragma once
// One open instrument session of our own layer: its resource, attributes,
// backend and the bytes received but not yet read.

#include "visa/backend.h"
#include "visa/resourcename.h"
#include "visa/visa.h"

#include <mutex>

namespace selvane::visa {

inline constexpr const char* kManufacturerName = "Selvane";

class Session {
  public:
    Session(ResourceName name, std::unique_ptr<Backend> backend, const SessionSettings& settings);

    ViStatus read(uint8_t* buffer, size_t count, size_t& got);
    ViStatus write(const uint8_t* data, size_t size, size_t& written);
    ViStatus clear();
    ViStatus setAttribute(ViAttr attribute, ViAttrState value);
    ViStatus getAttribute(ViAttr attribute, void* value);

  private:
    bool has(ViAttr attribute) const;
    ViStatus change(ViAttr attribute, ViAttrState value);

    std::mutex mutex_; // one operation at a time on the session
    ResourceName name_;
    std::unique_ptr<Backend> backend_;
    SessionSettings settings_;
    InputQueue queue_;
};

// Copies a string attribute into the caller's buffer of VI_FIND_BUFLEN bytes.
void copyAttributeText(const std::string& text, void* value);

} // namespace selvane::visa
