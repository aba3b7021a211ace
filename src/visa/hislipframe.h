#pragma once
// HiSLIP messages: a 16-byte header ("HS", type, control code, 32-bit
// parameter, 64-bit payload length, big-endian) and the payload.

#include "visa/fdchannel.h"

#include <cstdint>
#include <vector>

namespace selvane::visa::hislip {

enum Type : uint8_t {
    Initialize = 0,
    InitializeResponse = 1,
    FatalError = 2,
    Error = 3,
    Data = 6,
    DataEnd = 7,
    DeviceClearComplete = 8,
    DeviceClearAcknowledge = 9,
    Trigger = 12,
    AsyncMaximumMessageSize = 15,
    AsyncMaximumMessageSizeResponse = 16,
    AsyncInitialize = 17,
    AsyncInitializeResponse = 18,
    AsyncDeviceClear = 19,
    AsyncStatusQuery = 21,
    AsyncStatusResponse = 22,
    AsyncDeviceClearAcknowledge = 23,
};

constexpr size_t HeaderSize = 16;

struct Message {
    uint8_t type = 0;
    uint8_t control = 0;
    uint32_t parameter = 0;
    std::vector<uint8_t> payload;
};

std::vector<uint8_t> encode(uint8_t type, uint8_t control, uint32_t parameter,
                            const uint8_t* payload = nullptr, size_t size = 0);

ViStatus send(FdChannel& channel, uint8_t type, uint8_t control, uint32_t parameter, const Deadline& deadline,
              const uint8_t* payload = nullptr, size_t size = 0);

// One whole message; nothing is consumed before it is complete. A wrong
// prologue or an oversized payload gives VI_ERROR_IO.
ViStatus receive(FdChannel& channel, const Deadline& deadline, Message& message);

// Receives until a message of `type` arrives, dropping others; a FatalError ends the wait.
ViStatus await(FdChannel& channel, uint8_t type, const Deadline& deadline, Message& message);

} // namespace selvane::visa::hislip
