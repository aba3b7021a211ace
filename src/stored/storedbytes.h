#pragma once
// Reading the instrument's own files (.wfm, .rcd): little-endian fields at
// fixed offsets of a byte image. A field that runs past the image reads as 0,
// so a short or damaged file can never make a reader step outside its buffer.

#include <QByteArray>
#include <QString>
#include <QtEndian>
#include <cstdint>
#include <cstring>

template <typename T> T readLe(const QByteArray& bytes, qsizetype offset)
{
    if (offset < 0 || offset + qsizetype(sizeof(T)) > bytes.size()) return T{};
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

inline float readFloatLe(const QByteArray& bytes, qsizetype offset)
{
    const quint32 bits = readLe<quint32>(bytes, offset);
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

// ASCII text of a field of `size` bytes, up to its first NUL.
inline QString readText(const QByteArray& bytes, qsizetype offset, qsizetype size)
{
    if (offset < 0 || offset >= bytes.size()) return {};
    const QByteArray field = bytes.mid(offset, size);
    const qsizetype end = field.indexOf('\0');
    return QString::fromLatin1(end < 0 ? field : field.left(end));
}

// A signed 64-bit picosecond count in seconds: the low word is taken unsigned
// and the high word signed, as the instrument's own software reads them.
inline double TickTimeOf(int64_t picoseconds)
{
    const auto low = uint32_t(uint64_t(picoseconds) & 0xffffffffu);
    const auto high = int32_t(uint32_t(uint64_t(picoseconds) >> 32));
    return double(low) / 1e12 + double(high) * 0.004294967296;
}
