#pragma once
// What the raw socket and the serial line share: a byte stream whose
// messages end at the term character (see LineScanner).

#include "visa/backend.h"
#include "visa/fdchannel.h"
#include "visa/linescanner.h"

namespace selvane::visa {

class StreamBackend : public Backend {
  public:
    explicit StreamBackend(FdChannel channel) : channel_(std::move(channel)) {}

    ViStatus fetch(size_t wanted, const ReadSettings& settings, const Deadline& deadline,
                   InputQueue& queue) override;
    ViStatus write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written) override;
    ViStatus clear(const Deadline& deadline) override;
    size_t pending() const override { return channel_.available(); }
    bool isStream() const override { return true; }

  protected:
    const FdChannel& channel() const { return channel_; }

  private:
    FdChannel channel_;
    LineScanner scanner_;
};

} // namespace selvane::visa
