#include "sheet/sheetsections.h"

#include "sheet/sheetfields.h"

#include "acquire/waverecord.h"
#include "analysis/datarecord.h"
#include "analysis/measurerecord.h"
#include "link/devicefacts.h"
#include "sheet/sheetcodec.h"

#include <algorithm>

namespace {

constexpr int ChannelElements = 1024;
constexpr int LaElements = 2048;
constexpr int FftElements = 6144;
constexpr std::size_t MaxDataRows = 1u << 20;

// Elements 1 to last that the array holds; an index past its end writes nothing.
void writeElement(SheetWriter& out, const WaveArray& array, int index)
{
    if (index < static_cast<int>(array.size())) out.integer(array[static_cast<std::size_t>(index)]);
}

void writeRun(SheetWriter& out, const WaveArray& array, int last)
{
    for (int i = 1; i <= last; ++i)
        writeElement(out, array, i);
}

void readRun(SheetReader& in, WaveArray& array, int last)
{
    if (static_cast<int>(array.size()) < last + 1) array.resize(static_cast<std::size_t>(last) + 1, 0);
    for (int i = 1; i <= last; ++i)
        array[static_cast<std::size_t>(i)] = in.int32();
}

bool showsFft(const WaveRecord& wave)
{
    return wave.FFTDisplayText == QLatin1String("ON");
}

// The values before the arrays, read and written by the same list so the two never part.
template <typename Io, typename Wave> void waveValues(Io& io, Wave& wave)
{
    io.text(wave.WaveTitle);
    io.flag(wave.HasData);
    io.text(wave.TriggerMode);
    io.int32(wave.Points);
    io.flag(wave.storedFlag);
    io.flag(wave.YTMode);
    io.flag(wave.RollMode);
    io.int16(wave.storedWords[0]);
    io.int16(wave.storedWords[1]);
    io.text(wave.OffsetText[1]);
    io.text(wave.OffsetText[2]);
    io.text(wave.ScaleText[1]);
    io.text(wave.ScaleText[2]);
    for (auto* time : {&wave.TimeScaleText, &wave.TimeOffsetText, &wave.TimeScaleAText, &wave.TimeScaleBText,
                       &wave.TimeOffsetAText, &wave.TimeOffsetBText, &wave.DateText})
        io.text(*time);
    io.int32(wave.LastChannel);
    for (auto* flag : {&wave.ColorMode, &wave.GridOn, &wave.SplitScreen, &wave.BestFit})
        io.flag(*flag);
    io.laFlag();
    for (auto* flag : {&wave.ShowCH1, &wave.ShowCH2, &wave.ShowMath, &wave.ShowLa})
        io.flag(*flag);
    for (int channel : {1, 2, 5, 6})
        io.flag(wave.PrevShow[static_cast<std::size_t>(channel)]);
    auto& p = wave.Parameter;
    for (auto* position : {&p.s16ScrStartPos, &p.s16ScrEndPos, &p.s16ScrStartPosA, &p.s16ScrEndPosA,
                           &p.s16ScrStartPosB, &p.s16ScrEndPosB})
        io.int16(*position);
    for (auto* byte : {&p.s8TimeRolling, &p.s8CH1Enabled_Stop, &p.s8CH2Enabled_Stop, &p.s8MathEnabled_Stop,
                       &p.s8MathOperate})
        io.int8(*byte);
    io.single(p.f32MathOffset);
    io.int16(p.s16MathOffset);
    io.single(p.f32MathScale);
    io.int16(p.s16MathScale);
    for (auto* byte :
         {&p.s8FFTEnabled_Stop, &p.s8FFTSource, &p.s8FFTWindow, &p.s8FFTScreen, &p.s8FFTScaleType})
        io.int8(*byte);
    io.single(p.f32FFTVrms);
    io.int16(p.s16FFTdBVrms);
    io.single(p.f32FFTVertOffset);
    io.int16(p.s16FFTVertOffset);
    io.single(p.f32FFTHorizScale);
    io.int16(p.s16FFTHorizScale);
    io.single(p.f32FFTHorizOffset);
    io.int16(p.s16FFTHorizOffset);
    io.flag(wave.XYMode);
    io.text(wave.MathDisplayText);
    io.text(wave.FFTDisplayText);
}

// The wave section's one field of its own: the logic inputs flag.
struct Put : SheetPut {
    void laFlag() { out.flag(HasLa); }
};

struct Get : SheetGet {
    // The instrument in hand decides whether it has logic inputs, not the file.
    void laFlag() { in.flag(); }
};

} // namespace

void WriteWaveSection(SheetWriter& out, const WaveRecord& wave)
{
    Put put{{out}};
    waveValues(put, wave);
    if (!wave.HasData) return;
    const bool ch1 = wave.PrevShow[1], ch2 = wave.PrevShow[2];
    if (ch1 && ch2) {
        for (int i = 1; i <= ChannelElements; ++i) {
            writeElement(out, wave.WaveCH1, i);
            writeElement(out, wave.WaveCH2, i);
        }
    } else if (ch1 || ch2) {
        writeRun(out, ch1 ? wave.WaveCH1 : wave.WaveCH2, ChannelElements);
    }
    if (wave.PrevShow[6]) writeRun(out, wave.WaveLa, LaElements);
    if (wave.PrevShow[5]) {
        if (showsFft(wave))
            writeRun(out, wave.WaveFFT, FftElements);
        else
            writeRun(out, wave.WaveMath, ChannelElements);
    }
}

void ReadWaveSection(SheetReader& in, WaveRecord& wave)
{
    Get get{{in}};
    waveValues(get, wave);
    if (!wave.HasData) return;
    const bool ch1 = wave.PrevShow[1], ch2 = wave.PrevShow[2];
    if (ch1 && ch2) {
        for (WaveArray* array : {&wave.WaveCH1, &wave.WaveCH2})
            if (array->size() < ChannelElements + 1) array->resize(ChannelElements + 1, 0);
        for (std::size_t i = 1; i <= ChannelElements; ++i) {
            wave.WaveCH1[i] = in.int32();
            wave.WaveCH2[i] = in.int32();
        }
    } else if (ch1 || ch2) {
        readRun(in, ch1 ? wave.WaveCH1 : wave.WaveCH2, ChannelElements);
    }
    if (wave.PrevShow[6]) readRun(in, wave.WaveLa, LaElements);
    if (wave.PrevShow[5]) {
        if (showsFft(wave))
            readRun(in, wave.WaveFFT, FftElements);
        else
            readRun(in, wave.WaveMath, ChannelElements);
    }
}

void WriteMeasureSection(SheetWriter& out, const MeasureRecord& measure)
{
    out.text(measure.Title);
    out.flag(measure.HasData);
    out.text(measure.Legend);
    if (!measure.HasData) return;
    for (const MeasureItem& item : measure.Items) {
        out.text(item.Value);
        out.flag(item.Enabled);
        out.real(item.OverLimit);
        out.real(item.UnderLimit);
    }
}

void ReadMeasureSection(SheetReader& in, MeasureRecord& measure)
{
    measure.Title = in.text();
    measure.HasData = in.flag();
    measure.Legend = in.text();
    if (!measure.HasData) return;
    for (MeasureItem& item : measure.Items) {
        item.Value = in.text();
        item.Enabled = in.flag();
        item.OverLimit = in.real();
        item.UnderLimit = in.real();
    }
}

void WriteDataSection(SheetWriter& out, const DataRecord& data, const QString& title)
{
    out.text(title);
    out.flag(data.HasData);
    out.text(data.Legend);
    out.integer(data.Count);
    if (!data.HasData) return;
    const auto at = [](const DataColumn& column, int i) {
        return i < static_cast<int>(column.size()) ? column[static_cast<std::size_t>(i)] : QString();
    };
    const int rows = int(std::min<int64_t>(int64_t(data.Count) + 1, int64_t(MaxDataRows)));
    for (int i = 0; i < rows; ++i) {
        out.text(at(data.Voltages, i));
        out.text(at(data.Times, i));
    }
}

void ReadDataSection(SheetReader& in, DataRecord& data, QString& title)
{
    title = in.text();
    data.HasData = in.flag();
    data.Legend = in.text();
    data.Count = in.int32();
    if (!data.HasData || data.Count < 0) return;
    // A count beyond what a reading gives is a damaged file; the lines present are read.
    const auto size = std::min<std::size_t>(static_cast<std::size_t>(data.Count) + 1, MaxDataRows);
    data.Voltages.resize(std::max(data.Voltages.size(), size));
    data.Times.resize(std::max(data.Times.size(), size));
    for (std::size_t i = 0; i < size && !in.atEnd(); ++i) {
        data.Voltages[i] = in.text();
        data.Times[i] = in.text();
    }
}
