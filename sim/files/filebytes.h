#pragma once
// Little-endian fields at fixed offsets of a byte image, for the files and
// pictures the instrument writes. Writes outside the image are dropped.

#include <QByteArray>
#include <QString>
#include <QtEndian>
#include <algorithm>
#include <cstring>

template <typename T> void putLe(QByteArray& out, int offset, T value)
{
    if (offset < 0 || offset + static_cast<int>(sizeof(T)) > out.size()) return;
    qToLittleEndian(value, out.data() + offset);
}

inline void putFloatLe(QByteArray& out, int offset, float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    putLe<quint32>(out, offset, bits);
}

// ASCII text in a field of `size` bytes; a shorter text is ended by NULs.
inline void putText(QByteArray& out, int offset, int size, const QString& text)
{
    const QByteArray bytes = text.toLatin1().left(size);
    if (offset >= 0 && offset + size <= out.size())
        std::copy(bytes.begin(), bytes.end(), out.begin() + offset);
}

// Copies `bytes` into out at offset, at most `size` of them.
inline void putBytes(QByteArray& out, int offset, int size, const QByteArray& bytes)
{
    const int count = std::min({size, static_cast<int>(bytes.size()), static_cast<int>(out.size()) - offset});
    if (offset >= 0 && count > 0) std::copy_n(bytes.constData(), count, out.data() + offset);
}
