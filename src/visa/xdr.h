#pragma once
// XDR encoding for ONC RPC: every field a 4-byte big-endian word; opaque
// data and strings a length word and the bytes padded to four.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace selvane::visa {

class XdrWriter {
  public:
    XdrWriter& u32(uint32_t value);
    XdrWriter& opaque(const uint8_t* data, size_t size);
    XdrWriter& string(std::string_view text);
    const std::vector<uint8_t>& bytes() const { return bytes_; }

  private:
    std::vector<uint8_t> bytes_;
};

// Reads fields off a reply; a read past the end yields 0 or nothing and
// clears ok(), so callers check once at the end.
class XdrReader {
  public:
    XdrReader(const uint8_t* data, size_t size) : data_(data), size_(size) {}
    uint32_t u32();
    // At most `limit` bytes; longer data fails the reader.
    std::vector<uint8_t> opaque(size_t limit);
    bool ok() const { return ok_; }
    size_t position() const { return pos_; }

  private:
    const uint8_t* data_;
    size_t size_;
    size_t pos_ = 0;
    bool ok_ = true;
};

uint32_t readBigEndian32(const uint8_t* data);
void appendBigEndian32(std::vector<uint8_t>& out, uint32_t value);

} // namespace selvane::visa
