#pragma once
// Record files for the tests, written byte by byte: a header whose every field a
// test can set, and a frame area of any length.

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtEndian>
#include <cstdint>

struct RcdBuilder {
    QByteArray bytes;

    // A valid file of `frames` frames: CH1 on at 1 V/div, frame k's bytes all k.
    explicit RcdBuilder(int frames = 3, qsizetype areaLength = -1)
    {
        bytes = QByteArray(128 + (areaLength < 0 ? frames * 600 : areaLength), '\0');
        u16(0, 0xBABA);
        model("KV7204B");
        i16(56, 1);
        i16(58, int16_t(frames));
        channel(0, 1, 1000000, 0);
        for (qsizetype i = 0; i < qsizetype(frames) * 600 && 128 + i < bytes.size(); ++i)
            bytes[128 + i] = char(i / 600 + 1);
    }

    template <typename T> RcdBuilder& put(qsizetype offset, T value)
    {
        qToLittleEndian<T>(value, bytes.data() + offset);
        return *this;
    }
    RcdBuilder& u16(qsizetype offset, uint16_t v) { return put(offset, v); }
    RcdBuilder& i16(qsizetype offset, int16_t v) { return put(offset, v); }
    RcdBuilder& i32(qsizetype offset, int32_t v) { return put(offset, v); }
    RcdBuilder& i64(qsizetype offset, int64_t v) { return put(offset, v); }
    RcdBuilder& u8(qsizetype offset, uint8_t v) { return put(offset, v); }
    RcdBuilder& model(const QByteArray& text)
    {
        bytes.replace(4, 20, text.leftJustified(20, '\0', true));
        return *this;
    }
    // Channel 0 to 3: on byte, scale in microvolts, shift in 1/25 division.
    RcdBuilder& channel(int n, uint8_t on, int32_t scale, int16_t shift)
    {
        static constexpr qsizetype base[4] = {60, 70, 78, 86};
        const qsizetype at = base[n];
        u8(at, on);
        return i32(at + (n == 0 ? 4 : 2), scale).i16(at + (n == 0 ? 8 : 6), shift);
    }
    RcdBuilder& frames(int16_t first, int16_t last) { return i16(56, first).i16(58, last); }
    RcdBuilder& source(int32_t source, int32_t alt = 0) { return i32(48, source).i32(52, alt); }
    RcdBuilder& second(int32_t count) { return u8(116, 1).i32(44, count); }
    RcdBuilder& area(qsizetype at, char value)
    {
        if (128 + at < bytes.size()) bytes[128 + at] = value;
        return *this;
    }

    qint64 length() const { return bytes.size(); }
    bool save(const QString& path) const
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }
};
