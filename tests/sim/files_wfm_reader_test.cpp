// The simulator's waveform files and the program's reader agree both ways: every
// field the writer puts is read back, and the slot read from a file writes the
// same bytes again.
#include "files/wfmwriter.h"
#include "stored/storedbytes.h"
#include "stored/wfmfile.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

QByteArray ramp(int count, int first)
{
    QByteArray bytes(count, '\0');
    for (int i = 0; i < count; ++i)
        bytes[i] = char((first + 7 * i) & 0xff);
    return bytes;
}

WfmContent content(std::uint8_t kind, bool longMemory, bool peak, int count)
{
    WfmContent c;
    c.model = "KV7102B";
    c.triggerKind = kind;
    c.longMemory = longMemory;
    c.rollPosition = 77;
    c.timeMode = kind == kWfmTriggerAlternation ? WfmTimeMode::YT : WfmTimeMode::Roll;
    c.timeBaseA = {count, 2'000'000, -123'456'789'012, 2.5e8f, -9'876'543'210'123};
    if (kind == kWfmTriggerAlternation)
        c.timeBaseB = {count / 2, 5'000, 42, 1.0e9f, -(int64_t(1) << 40)};
    else
        c.extraTime = 31'415;
    c.triggerSourceA = 1;
    c.triggerSourceB = 3;
    c.peakFlags = peak ? (kind == kWfmTriggerAlternation ? 0x6 : 0x1) : 0;
    c.acquireMode = peak ? kWfmAcquirePeak : 1;
    for (int n = 0; n < 4; ++n) {
        WfmChannel& ch = c.channels[size_t(n)];
        ch.enabled = n != 1 || kind == kWfmTriggerAlternation;
        ch.scaleDisplay = 2'000 * (n + 1);
        ch.shiftDisplay = std::int16_t(-30 + 20 * n);
        ch.scaleMeasured = 5'000'000 / (n + 1);
        ch.shiftMeasured = std::int16_t(11 * n);
        if (ch.enabled) ch.samples = ramp(count, 40 * n); // an off channel's bytes are never read
    }
    return c;
}

std::int64_t picoseconds(double seconds)
{
    return std::llround(seconds * 1e12);
}

// The writer's content again from a slot; what the slot doesn't keep comes from its header.
WfmContent contentOf(const MemoryWaveSlot& s)
{
    WfmContent c;
    c.magic = readLe<quint16>(s.Header, 0);
    c.model = readText(s.Header, 4, 20);
    c.longMemory = readLe<quint8>(s.Header, 52) != 0;
    c.rollPosition = s.RollPosition;
    c.triggerKind = readLe<quint8>(s.Header, 200);
    c.timeMode = s.ModeXY ? WfmTimeMode::XY : s.ModeRoll ? WfmTimeMode::Roll : WfmTimeMode::YT;
    c.peakFlags = readLe<quint8>(s.Header, 402);
    c.acquireMode = readLe<qint32>(s.Header, 404);
    if (s.IsAlternation) {
        c.timeBaseA = {s.SampleCountA, picoseconds(s.TimeDivA), picoseconds(s.DelayA), s.SampleRateA,
                       picoseconds(s.StartTimeA)};
        c.timeBaseB = {s.SampleCountB, picoseconds(s.TimeDivB), picoseconds(s.DelayB), s.SampleRateB,
                       picoseconds(s.StartTimeB)};
        c.triggerSourceA = s.TriggerSourceA;
        c.triggerSourceB = s.TriggerSourceB;
    } else {
        c.timeBaseA = {s.SampleCount, picoseconds(s.TimeDiv), picoseconds(s.Delay), s.SampleRate,
                       picoseconds(s.StartTime)};
        c.extraTime = picoseconds(s.ExtraTime);
        c.triggerSourceA = readLe<quint8>(s.Header, 202);
        c.triggerSourceB = readLe<quint8>(s.Header, 232);
    }
    for (int n = 0; n < 4; ++n) {
        WfmChannel& ch = c.channels[size_t(n)];
        ch.enabled = s.ChanEnabled[size_t(n)];
        ch.scaleDisplay = std::int32_t(std::lround(double(s.ChanVoltDiv[size_t(n)]) * 1e6));
        ch.shiftDisplay = std::int16_t(std::lround(s.ChanOffset[size_t(n)] / s.ChanVoltDiv[size_t(n)] * 25));
        ch.scaleMeasured = std::int32_t(std::lround(double(s.ChanVoltDivMeasured[size_t(n)]) * 1e6));
        ch.shiftMeasured = s.ChanShiftMeasured[size_t(n)];
        for (int i = 0; i < s.sampleCount(n); ++i)
            ch.samples.append(char(s.Samples[size_t(n)][size_t(i)] - 25));
    }
    return c;
}

struct Case {
    const char* name;
    std::uint8_t kind;
    bool longMemory, peak;
    int count;
};

class WfmAgreement : public ::testing::TestWithParam<Case> {};

TEST_P(WfmAgreement, ReaderTakesWhatTheWriterPutsAndWritesItBack)
{
    const Case& k = GetParam();
    const WfmContent written = content(k.kind, k.longMemory, k.peak, k.count);
    const QByteArray file = writeWfm(written);
    MemoryWaveSlot slot;
    int code = 0;
    ASSERT_TRUE(LoadMemoryWaveBytes(file, slot, code).accepted);
    EXPECT_EQ(code, 3);
    for (int n = 0; n < 4; ++n) {
        SCOPED_TRACE(n);
        EXPECT_EQ(slot.ChanEnabled[size_t(n)], written.channels[size_t(n)].enabled);
        if (!slot.ChanEnabled[size_t(n)]) continue;
        const WfmBlock block = wfmBlockOf(written, n);
        for (int i = 0; i < k.count; ++i)
            ASSERT_EQ(slot.Samples[size_t(n)][size_t(i)], quint8(file[block.offset + i]) + 25) << i;
        EXPECT_EQ(slot.ChanPeakState[size_t(n)], k.peak);
    }
    EXPECT_EQ(writeWfm(contentOf(slot)), file);
}

INSTANTIATE_TEST_SUITE_P(Layouts, WfmAgreement,
                         ::testing::Values(Case{"Edge", kWfmTriggerEdge, false, false, 8192},
                                           Case{"EdgePeak", kWfmTriggerEdge, false, true, 600},
                                           Case{"Alternation", kWfmTriggerAlternation, false, true, 3000}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
