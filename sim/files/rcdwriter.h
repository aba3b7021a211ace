#pragma once
// The instrument's record file (.rcd): a 128-byte header, little-endian,
// then frames of 600 screen rows, one byte each, as the screen draws them.
// An optional second block of frames starts at a fixed place in the frame
// area.

#include <QByteArray>
#include <QString>
#include <QVector>
#include <array>
#include <cstdint>

constexpr int RcdHeaderSize = 128;
constexpr int RcdFrameSize = 600;
// Where the second block starts, counted from the end of the header, and
// the least frame area a file with a second block has.
constexpr int RcdSecondStart = 0x7FF80;
constexpr int RcdSecondMinimum = 0x80000;
// Frames of the first block that fit before the second block.
constexpr int RcdFramesBeforeSecond = RcdSecondStart / RcdFrameSize;

constexpr std::int32_t RcdSourceFromAlt = 4;

struct RcdChannel {
    bool on = false;
    std::int32_t scale = 1000000; // microvolts per division
    std::int16_t shift = 0;       // 1/25 of a division
};

struct RcdContent {
    std::uint16_t magic = 0xBABA;
    QString model = "KV7204B";
    std::int32_t source = 0;    // 0..3 = CH1..CH4, 4 = take sourceAlt
    std::int32_t sourceAlt = 0; // 0..3
    std::int16_t firstFrame = 1;
    std::int16_t lastFrame = 0; // 0: as many as there are frames
    std::array<RcdChannel, 4> channels;
    std::int64_t timeDiv = 0; // picoseconds
    std::int64_t delay = 0;   // picoseconds
    // 600 rows each; a shorter frame is padded with zeros, a longer one cut.
    QVector<QByteArray> frames;
    // Empty: no second block.
    QVector<QByteArray> secondFrames;
};

QByteArray writeRcd(const RcdContent& content);
