#pragma once
// Reads fields of a file image at fixed offsets, independently of the writers.

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <cstring>

class LittleEndianImage {
  public:
    explicit LittleEndianImage(QByteArray bytes) : bytes_(std::move(bytes)) {}

    std::uint64_t unsignedAt(int offset, int size) const
    {
        std::uint64_t value = 0;
        for (int i = size - 1; i >= 0; --i)
            value = (value << 8) | static_cast<std::uint8_t>(bytes_.at(offset + i));
        return value;
    }
    int u8(int offset) const { return static_cast<int>(unsignedAt(offset, 1)); }
    int u16(int offset) const { return static_cast<int>(unsignedAt(offset, 2)); }
    int i16(int offset) const { return static_cast<std::int16_t>(unsignedAt(offset, 2)); }
    std::int32_t i32(int offset) const { return static_cast<std::int32_t>(unsignedAt(offset, 4)); }
    std::int64_t i64(int offset) const { return static_cast<std::int64_t>(unsignedAt(offset, 8)); }
    float f32(int offset) const
    {
        const auto bits = static_cast<std::uint32_t>(unsignedAt(offset, 4));
        float value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    // NUL-ended text in a field of `size` bytes.
    QString text(int offset, int size) const
    {
        const QByteArray field = bytes_.mid(offset, size);
        const int end = field.indexOf('\0');
        return QString::fromLatin1(end < 0 ? field : field.left(end));
    }
    QByteArray bytes(int offset, int size) const { return bytes_.mid(offset, size); }
    int size() const { return static_cast<int>(bytes_.size()); }

  private:
    QByteArray bytes_;
};

// A run of `count` bytes counting up from `first`, wrapping at 256, so every
// sample's place in a block can be told apart.
inline QByteArray ramp(int count, int first = 0)
{
    QByteArray out(count, '\0');
    for (int i = 0; i < count; ++i)
        out[i] = static_cast<char>((first + i) & 0xFF);
    return out;
}
