#include "stored/memoryviewdraw.h"

#include "stored/memorysteps.h"
#include "wave/alternation.h"
#include "wave/drawgrid.h"
#include "wave/drawmarker.h"
#include "wave/drawosc.h"
#include "wave/drawtimemarker.h"
#include "wave/drawtrace.h"
#include "wave/qimagesurface.h"
#include "wave/wavecolors.h"
#include "wave/wavelayout.h"

namespace {

// The wave view's arrays hold a reading's sample n at 212 + n; its ordinary
// trace starts two samples on (one less for peak halves) at the window's first column.
constexpr int TraceOrigin = 214;
constexpr int PeakOrigin = 213;

WaveArray placeRows(const std::vector<int16_t>& rows, int startPos, int origin)
{
    const size_t base = size_t(origin + 2 * std::max(startPos, 0));
    WaveArray out(base + rows.size() + 1, 0);
    if (rows.empty()) return out;
    out[base - 1] = rows.front();
    std::copy(rows.begin(), rows.end(), out.begin() + qsizetype(base));
    out.back() = rows.back();
    return out;
}

// X-Y takes point k at index k + 1.
WaveArray xyRows(const std::vector<int16_t>& rows)
{
    WaveArray out(rows.size() + 1, 0);
    std::copy(rows.begin(), rows.end(), out.begin() + 1);
    return out;
}

void setPositions(WaveParameter& p, const MemoryWaveSlot& s)
{
    p.s16ScrStartPos = s.Single.StartPos;
    p.s16ScrEndPos = s.Single.EndPos;
    p.s16ScrStartPosA = s.WindowA.StartPos;
    p.s16ScrEndPosA = s.WindowA.EndPos;
    p.s16ScrStartPosB = s.WindowB.StartPos;
    p.s16ScrEndPosB = s.WindowB.EndPos;
}

} // namespace

WaveRecord MemoryDrawRecord(const MemoryWaveSlot& s, const MemoryWaveScreen& screen)
{
    WaveRecord r;
    r.HasData = s.HasData;
    r.TriggerMode = s.TriggerMode;
    r.YTMode = s.ModeYT;
    r.RollMode = s.ModeRoll;
    r.XYMode = s.ModeXY;
    r.ColorMode = s.ColorOn;
    r.GridOn = s.GridOn;
    r.SplitScreen = s.IsAlternation;
    r.FFTDisplayText = r.MathDisplayText = QStringLiteral("OFF");
    r.Points = 600;
    setPositions(r.Parameter, s);
    for (int n = 0; n < 4; ++n) {
        const int channel = n + 1;
        const bool on = s.ChanEnabled[size_t(n)];
        r.setShowChannel(channel, on);
        r.PrevShow[size_t(channel)] = on;
        r.ScaleText[size_t(channel)] = MemoryVoltText(s.ChanVoltDiv[size_t(n)]);
        r.OffsetText[size_t(channel)] = MemoryVoltText(s.ChanOffset[size_t(n)]);
        const bool peak = s.ChanPeakState[size_t(n)];
        if (peak) r.Parameter.s16ChanPeakState = int16_t(r.Parameter.s16ChanPeakState | (1 << n));
        const int start = s.windowOf(s.timeBaseOf(n)).StartPos;
        if (s.ModeXY) {
            r.channelWave(channel) = xyRows(screen.rows[size_t(n)]);
        } else {
            r.channelWave(channel) =
                placeRows(screen.rows[size_t(n)], start, peak ? PeakOrigin : TraceOrigin);
            if (peak) r.channelPeak(channel) = placeRows(screen.peakRows[size_t(n)], start, PeakOrigin);
        }
    }
    if (s.ModeXY) r.Points = int32_t(std::min(screen.rows[0].size(), screen.rows[1].size()));
    r.TimeScaleText = MemoryTimeText(s.TimeDiv);
    r.TimeOffsetText = MemoryTimeText(s.Delay);
    r.TimeScaleAText = MemoryTimeText(s.TimeDivA);
    r.TimeOffsetAText = MemoryTimeText(s.DelayA);
    r.TimeScaleBText = MemoryTimeText(s.TimeDivB);
    r.TimeOffsetBText = MemoryTimeText(s.DelayB);
    return r;
}

std::vector<MemoryLegend> MemoryLegends(const MemoryWaveSlot& s, double zoom)
{
    // Two lines under the grid: positions of CH1 and CH2 and the (upper) delay,
    // then CH3, CH4 and the lower delay.
    const double first = 203 * zoom + 25, second = 215 * zoom + 25;
    std::vector<MemoryLegend> out;
    for (int n = 0; n < 4; ++n) {
        if (!s.ChanEnabled[size_t(n)]) continue;
        const QString text = QStringLiteral("Pos%1:  ").arg(n + 1) + MemoryVoltText(s.ChanOffset[size_t(n)]);
        out.push_back({text, QPointF(25 + (n % 2) * 95 * zoom, n < 2 ? first : second)});
    }
    if (s.ModeXY) return out;
    const double x = 25 + 190 * zoom;
    if (s.IsAlternation) {
        out.push_back({QStringLiteral("DelayUP:   ") + MemoryTimeText(s.DelayA), QPointF(x, first)});
        out.push_back({QStringLiteral("DelayDN:   ") + MemoryTimeText(s.DelayB), QPointF(x, second)});
    } else {
        out.push_back({QStringLiteral("Delay:   ") + MemoryTimeText(s.Delay), QPointF(x, first)});
    }
    return out;
}

void DrawMemoryWave(Surface& surface, double zoom, const MemoryWaveSlot& slot, const MemoryWaveScreen& screen)
{
    const WaveRecord r = MemoryDrawRecord(slot, screen);
    WaveCanvas canvas(surface, zoom);
    // The alternate source pair is the file's, not the instrument's.
    canvas.PairOrdered = SourcesPairOddChannels(slot.TriggerSourceA, slot.TriggerSourceB);
    DrawScrGrid(canvas, r);
    if (!r.HasData) return;
    if (r.XYMode) {
        DrawOSC(canvas, r);
        return;
    }
    PeakFlags peaks;
    GetPeakStates(r.Parameter, peaks);
    for (int channel = 1; channel <= 4; ++channel) {
        if (!r.showChannel(channel)) continue;
        surface.setForeColor(ChannelColor(channel, r.ColorMode));
        DrawChannelMarker(canvas, channel, r.OffsetText[size_t(channel)], r.ScaleText[size_t(channel)],
                          r.TriggerMode, r.FFTDisplayText, 0, false);
        if (peaks[size_t(channel)])
            DrawPeakTrace(canvas, r.channelWave(channel), r.channelPeak(channel), r.Points, channel,
                          r.Parameter, r.TriggerMode, r.FFTDisplayText);
        else
            DrawChannelTrace(canvas, r.channelWave(channel), r.Points, channel, r.Parameter, r.TriggerMode,
                             r.FFTDisplayText);
    }
    if (slot.IsAlternation) {
        DrawTriggerMarker(canvas, r.TimeScaleAText, r.TimeOffsetAText, false, r.ColorMode);
        DrawTriggerMarker(canvas, r.TimeScaleBText, r.TimeOffsetBText, true, r.ColorMode);
    } else {
        DrawTriggerMarker(canvas, r.TimeScaleText, r.TimeOffsetText, false, r.ColorMode);
    }
    surface.setForeColor(PaletteFor(r.ColorMode).maker);
    for (const MemoryLegend& legend : MemoryLegends(slot, canvas.Zoom))
        surface.text(legend.at, legend.text, false);
}

QImage MemoryWavePicture(double zoom, const MemoryWaveSlot& slot, const MemoryWaveScreen& screen)
{
    QImageSurface surface(PictureSizeAt(zoom));
    DrawMemoryWave(surface, zoom, slot, screen);
    return surface.image();
}

ReadoutInput MemoryReadoutInput(const MemoryWaveSlot& slot, double zoom, int language)
{
    return ReadoutInputOf(MemoryDrawRecord(slot, {}), zoom, language);
}
