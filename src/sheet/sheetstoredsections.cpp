// The sections of the record and memory wave windows: the stored files' slots.

#include "sheet/sheetstoredsections.h"

#include "sheet/sheetcodec.h"

#include "sheet/sheetfields.h"
#include "stored/memorywaveslot.h"
#include "stored/recordplay.h"
#include "stored/recordslot.h"

#include <algorithm>

namespace {

constexpr int FrameCount = 1024;
// Past this a sample count is a damaged file, not a reading.
constexpr int64_t MaxSamples = 1 << 22;
constexpr int32_t ColumnLimit = 0x80000;
constexpr int32_t ScreenPointsAfterLoad = 600;

std::size_t boundedCount(int64_t count)
{
    return static_cast<std::size_t>(std::clamp<int64_t>(count, 0, MaxSamples));
}

// Past the array's end a zero keeps the run as long as its count, so the reader stays in step.
void writeSample(SheetWriter& out, const std::vector<int16_t>& samples, int32_t index)
{
    const bool held = index >= 0 && static_cast<std::size_t>(index) < samples.size();
    out.integer(held ? samples[static_cast<std::size_t>(index)] : 0);
}

void readSample(SheetReader& in, std::vector<int16_t>& samples, std::size_t index)
{
    const int16_t value = in.int16();
    if (index < samples.size()) samples[index] = value;
}

// A channel's array holds its count and the spare last element.
void sizeFor(std::vector<int16_t>& samples, std::size_t count)
{
    samples.assign(count + 1, 0);
}

} // namespace

void WriteRecordSection(SheetWriter& out, RecordSlot& record)
{
    if (record.HasFile && record.PlayState == RecordReplaying) RecordReplayPause(record);
    out.text(record.Name);
    out.flag(record.HasFile);
    out.flag(record.HasSecond);
    out.flag(record.WhiteBackground);
    out.text(record.FileName);
    out.text(record.SourceName);
    out.flag(record.storedFlag);
    out.integer(record.FirstFrame);
    out.integer(record.LastFrame);
    out.integer(record.PlayState);
    out.integer(record.CurrentFrame);
    out.flag(record.Circular);
    out.text(record.TimeText);
    out.text(record.DelayText);
    out.text(record.VoltText);
    out.text(record.OffsetText);
    out.real(record.FrameInterval);
    if (!record.HasFile) return;
    const int64_t count = (int64_t(record.LastFrame) - record.FirstFrame + 1) * FrameCount;
    const auto filed = std::min<int64_t>(std::max<int64_t>(count, 0), int64_t(record.Samples.size()));
    for (int64_t i = 0; i < filed; ++i)
        out.integer(record.Samples[static_cast<std::size_t>(i)]);
}

void ReadRecordSection(SheetReader& in, RecordSlot& record)
{
    record.Name = in.text();
    record.HasFile = in.flag();
    record.HasSecond = in.flag();
    record.WhiteBackground = in.flag();
    record.FileName = in.text();
    record.SourceName = in.text();
    record.storedFlag = in.flag();
    record.FirstFrame = in.int16();
    record.LastFrame = in.int16();
    record.PlayState = static_cast<uint8_t>(in.integer());
    record.CurrentFrame = in.int16();
    record.Circular = in.flag();
    record.TimeText = in.text();
    record.DelayText = in.text();
    record.VoltText = in.text();
    record.OffsetText = in.text();
    record.FrameInterval = in.real();
    if (!record.HasFile) return;
    // The writer stops where the array ends, so the run also ends at the next section's text.
    const std::size_t count = boundedCount((int64_t(record.LastFrame) - record.FirstFrame + 1) * FrameCount);
    record.Samples.clear();
    record.Samples.reserve(count);
    while (record.Samples.size() < count && !in.atEnd() && !in.nextIsText())
        record.Samples.push_back(in.int16());
}

namespace {

template <typename Io, typename Slot> void memoryValues(Io& io, Slot& m)
{
    io.text(m.Name);
    io.text(m.FileName);
    io.flag(m.HasData);
    io.text(m.TriggerMode);
    io.screenPoints();
    io.flag(m.ModeYT);
    for (auto* channels : {&m.ChanOffset, &m.ChanVoltDiv, &m.ChanVoltDivMeasured})
        for (std::size_t c : {0u, 1u})
            io.single((*channels)[c]);
    io.int16(m.ChanShiftMeasured[0]);
    io.int16(m.ChanShiftMeasured[1]);
    for (auto* rate : {&m.SampleRate, &m.SampleRateA, &m.SampleRateB})
        io.single(*rate);
    io.real(m.ExtraTime);
    for (auto* time : {&m.StartTime, &m.StartTimeA, &m.StartTimeB, &m.TimeDiv, &m.Delay, &m.TimeDivA,
                       &m.TimeDivB, &m.DelayA, &m.DelayB})
        io.real(*time);
    auto& extra = m.SheetValues;
    for (auto* flag : {&m.IsAlternation, &m.ModeXY, &m.ModeRoll, &extra.ModeFlag})
        io.flag(*flag);
    io.flag(m.ChanEnabled[0]);
    io.flag(m.ChanEnabled[1]);
    for (auto* flag : {&m.GridOn, &m.ColorOn, &extra.ViewFlags[0], &extra.ViewFlags[1], &extra.ViewFlags[2],
                       &extra.ViewFlags[3], &extra.ViewFlags[4]})
        io.flag(*flag);
    io.byte(m.TriggerSourceA);
    io.byte(m.TriggerSourceB);
    io.flag(extra.FifthOn);
    io.text(extra.ViewTexts[0]);
    io.text(extra.ViewTexts[1]);
    for (auto* count : {&m.SampleCount, &m.SampleCountA, &m.SampleCountB})
        io.int32(*count);
    auto& s = m.Loaded;
    for (auto* single : {&s.ChanOffset[0], &s.ChanOffset[1], &s.ChanVoltDiv[0], &s.ChanVoltDiv[1],
                         &s.SampleRate, &s.SampleRateA})
        io.single(*single);
    io.int16(extra.SnapshotWords[0]);
    io.int16(extra.SnapshotWords[1]);
    for (auto* time : {&s.TimeDiv, &s.Delay, &s.StartTime, &s.TimeDivA, &s.DelayA, &s.StartTimeA, &s.TimeDivB,
                       &s.DelayB, &s.StartTimeB})
        io.real(*time);
    io.widened(s.SampleRateB);
    io.flag(extra.SnapshotFlags[0]);
    io.flag(extra.SnapshotFlags[1]);
    io.byte(extra.SnapshotByte);
}

// The memory wave section's one field of its own: the screen's point count.
struct Put : SheetPut {
    void screenPoints() { out.integer(ScreenPointsAfterLoad); }
};

struct Get : SheetGet {
    // The window computation sets its own screen width when it draws.
    void screenPoints() { in.integer(); }
};

// The filed arrays in their order, each under its own flag.
template <typename Slot> auto filedArrays(Slot& m)
{
    using Array = decltype(&m.Samples[0]);
    std::vector<Array> arrays;
    if (m.ChanEnabled[0]) arrays.push_back(&m.Samples[0]);
    if (m.ChanEnabled[1]) arrays.push_back(&m.Samples[1]);
    if (m.SheetValues.FifthOn) arrays.push_back(&m.SheetValues.FifthSamples);
    return arrays;
}

// CH3 and CH4 aren't in the file: a sheet keeps their scales and samples as zero.
void clearUnfiledChannels(MemoryWaveSlot& m)
{
    for (std::size_t c : {2u, 3u}) {
        m.ChanOffset[c] = m.ChanVoltDiv[c] = m.ChanVoltDivMeasured[c] = 0;
        m.Loaded.ChanOffset[c] = m.Loaded.ChanVoltDiv[c] = 0;
        m.Samples[c].clear();
    }
}

} // namespace

void WriteMemoryWaveSection(SheetWriter& out, const MemoryWaveSlot& m)
{
    Put put{{out}};
    memoryValues(put, m);
    if (!m.HasData) return;
    const auto arrays = filedArrays(m);
    const bool ch1 = m.ChanEnabled[0], ch2 = m.ChanEnabled[1];
    // The reader's bounds: a damaged count is filed as far as it reads back.
    const auto count = int32_t(boundedCount(m.SampleCount));
    const auto countA = int32_t(boundedCount(m.SampleCountA)), countB = int32_t(boundedCount(m.SampleCountB));
    if (!m.IsAlternation && m.SampleCount <= ColumnLimit) {
        for (int32_t i = 0; i < count; ++i)
            for (const auto* array : arrays)
                writeSample(out, *array, i);
    } else if (!m.IsAlternation) {
        for (const auto* array : arrays)
            for (int32_t i = 0; i < count; ++i)
                writeSample(out, *array, i);
    } else if (countA == countB) {
        for (int32_t i = 0; i < countA; ++i) {
            if (ch1) writeSample(out, m.Samples[0], i);
            if (ch2) writeSample(out, m.Samples[1], i);
        }
    } else if (ch1) {
        // The second pass goes over CH1 again, not CH2: the format has it so.
        for (int32_t pass : {countA, countB})
            for (int32_t i = 0; i < pass; ++i)
                writeSample(out, m.Samples[0], i);
    }
}

void ReadMemoryWaveSection(SheetReader& in, MemoryWaveSlot& m)
{
    Get get{{in}};
    memoryValues(get, m);
    clearUnfiledChannels(m);
    if (!m.HasData) return;
    const bool ch1 = m.ChanEnabled[0], ch2 = m.ChanEnabled[1];
    if (!m.IsAlternation) {
        const std::size_t count = boundedCount(m.SampleCount);
        const auto arrays = filedArrays(m);
        for (auto* array : arrays)
            sizeFor(*array, count);
        if (m.SampleCount <= ColumnLimit) {
            for (std::size_t i = 0; i < count; ++i)
                for (auto* array : arrays)
                    readSample(in, *array, i);
        } else {
            for (auto* array : arrays)
                for (std::size_t i = 0; i < count; ++i)
                    readSample(in, *array, i);
        }
        return;
    }
    const std::size_t countA = boundedCount(m.SampleCountA), countB = boundedCount(m.SampleCountB);
    if (ch1) sizeFor(m.Samples[0], countA);
    if (ch2) sizeFor(m.Samples[1], countA);
    if (countA == countB) {
        for (std::size_t i = 0; i < countA; ++i) {
            if (ch1) readSample(in, m.Samples[0], i);
            if (ch2) readSample(in, m.Samples[1], i);
        }
    } else if (ch1) {
        for (std::size_t count : {countA, countB})
            for (std::size_t i = 0; i < count; ++i)
                readSample(in, m.Samples[0], i);
    }
}
