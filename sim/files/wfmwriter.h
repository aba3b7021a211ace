#pragma once
// The instrument's waveform file (.wfm): a 420-byte header, little-endian,
// then one byte per sample. A stored byte is the sample's screen row (0 on
// the top grid line, 100 - position at the channel's zero); readers add 25
// to it to get their code.

#include <QByteArray>
#include <QString>
#include <array>
#include <cstdint>

constexpr int kWfmHeaderSize = 420;
constexpr int kWfmAlternationStart = kWfmHeaderSize + 84;
// Outside alternate trigger each channel owns a block of this size; with
// long memory a pair of channels shares two of them.
constexpr int WfmBlockSize = 0x2000;

enum class WfmTimeMode : std::uint8_t { YT = 0, XY = 1, Roll = 2 };

constexpr std::uint8_t kWfmTriggerEdge = 0;
constexpr std::uint8_t kWfmTriggerAlternation = 4;
constexpr std::int32_t kWfmAcquirePeak = 2;

struct WfmChannel {
    bool enabled = false;
    std::int32_t scaleDisplay = 1000000; // microvolts per division
    std::int16_t shiftDisplay = 0;       // 1/25 of a division
    std::int32_t scaleMeasured = 1000000;
    std::int16_t shiftMeasured = 0;
    // The stored bytes. Shorter than the block: the rest stays zero; longer:
    // cut at the block.
    QByteArray samples;
};

struct WfmTimeBase {
    std::int32_t sampleCount = 0;
    std::int64_t timeDiv = 0; // picoseconds
    std::int64_t delay = 0;   // picoseconds
    float sampleRate = 0;     // samples per second
    std::int64_t startTime = 0;
};

struct WfmContent {
    std::uint16_t magic = 0xA5A5;
    QString model = "KV7204B";
    bool longMemory = false;
    std::int32_t rollPosition = 0;
    std::array<WfmChannel, 4> channels;
    WfmTimeBase timeBaseA;
    WfmTimeBase timeBaseB; // alternate trigger only
    std::int64_t extraTime = 0;
    std::uint8_t triggerKind = kWfmTriggerEdge;
    std::uint8_t triggerSourceA = 0;
    std::uint8_t triggerSourceB = 1;
    WfmTimeMode timeMode = WfmTimeMode::YT;
    // Bit 0: peak data outside alternate trigger; bit 1: on time base A;
    // bit 2: on time base B.
    std::uint8_t peakFlags = 0;
    std::int32_t acquireMode = 0;
};

// Where channel n's samples start in the file, and how many bytes it owns.
struct WfmBlock {
    int offset;
    int size;
};
WfmBlock wfmBlockOf(const WfmContent& content, int channel);

QByteArray writeWfm(const WfmContent& content);
