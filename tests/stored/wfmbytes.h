#pragma once
// Waveform files made by the tests themselves: a zeroed image with the header
// fields at their offsets, and helpers to put a channel and its samples.

#include <QByteArray>
#include <QString>
#include <QtEndian>
#include <cstdint>
#include <cstring>

struct WfmBytes {
    QByteArray bytes;

    explicit WfmBytes(qsizetype size = 420 + 4 * 0x2000) : bytes(size, '\0')
    {
        put<uint16_t>(0, 0xA5A5);
        model("KV7204B");
        put<int32_t>(60, 600);
    }
    template <typename T> WfmBytes& put(qsizetype at, T value)
    {
        qToLittleEndian(value, bytes.data() + at);
        return *this;
    }
    WfmBytes& putFloat(qsizetype at, float value)
    {
        uint32_t bits;
        std::memcpy(&bits, &value, sizeof bits);
        return put<uint32_t>(at, bits);
    }
    WfmBytes& model(const char* text)
    {
        std::memset(bytes.data() + 4, 0, 20);
        std::memcpy(bytes.data() + 4, text, std::min<size_t>(std::strlen(text), 20));
        return *this;
    }
    WfmBytes& channel(int n, bool on, int32_t scaleUv = 1'000'000, int16_t shift = 0)
    {
        const qsizetype at = 68 + 24 * n;
        put<int32_t>(at, scaleUv).put<int16_t>(at + 4, shift).put<uint8_t>(at + 14, on ? 1 : 0);
        return put<int32_t>(at + 16, scaleUv).put<int16_t>(at + 20, shift);
    }
    WfmBytes& alternation() { return put<uint8_t>(200, 4); }
    // Fills `count` bytes from `at` with first, first + 1, ... (wrapping at 256).
    WfmBytes& ramp(qsizetype at, int count, int first)
    {
        for (int i = 0; i < count && at + i < bytes.size(); ++i)
            bytes[at + i] = char((first + i) & 0xff);
        return *this;
    }
};
