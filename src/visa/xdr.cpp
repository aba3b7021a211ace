#include "visa/xdr.h"

namespace selvane::visa {

uint32_t readBigEndian32(const uint8_t* data)
{
    return uint32_t(data[0]) << 24 | uint32_t(data[1]) << 16 | uint32_t(data[2]) << 8 | data[3];
}

void appendBigEndian32(std::vector<uint8_t>& out, uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(uint8_t(value >> shift));
}

XdrWriter& XdrWriter::u32(uint32_t value)
{
    appendBigEndian32(bytes_, value);
    return *this;
}

XdrWriter& XdrWriter::opaque(const uint8_t* data, size_t size)
{
    u32(uint32_t(size));
    bytes_.insert(bytes_.end(), data, data + size);
    bytes_.resize(bytes_.size() + (4 - size % 4) % 4, 0);
    return *this;
}

XdrWriter& XdrWriter::string(std::string_view text)
{
    return opaque(reinterpret_cast<const uint8_t*>(text.data()), text.size());
}

uint32_t XdrReader::u32()
{
    if (!ok_ || size_ - pos_ < 4) {
        ok_ = false;
        return 0;
    }
    const uint32_t value = readBigEndian32(data_ + pos_);
    pos_ += 4;
    return value;
}

std::vector<uint8_t> XdrReader::opaque(size_t limit)
{
    const size_t length = u32();
    const size_t padded = length + (4 - length % 4) % 4;
    if (!ok_ || length > limit || padded > size_ - pos_) {
        ok_ = false;
        return {};
    }
    std::vector<uint8_t> bytes(data_ + pos_, data_ + pos_ + length);
    pos_ += padded;
    return bytes;
}

} // namespace selvane::visa
