// Everything on the picture but the background, from a finished reading.

#include "wave/drawosc.h"

#include "wave/alternation.h"
#include "wave/drawmarker.h"
#include "wave/drawmath.h"
#include "wave/drawtimemarker.h"
#include "wave/drawtrace.h"
#include "wave/drawxy.h"
#include "wave/wavecolors.h"

namespace {

// A channel is drawn when it is wanted now and was read into the record by the
// last reading, so a box ticked since then never shows stale samples.
bool channelShown(const WaveRecord& r, int channel)
{
    return r.showChannel(channel) && r.PrevShow[channel];
}

void drawChannel(const WaveCanvas& canvas, const WaveRecord& r, int channel, bool peak)
{
    const WaveParameter& p = r.Parameter;
    canvas.surface.setForeColor(ChannelColor(channel, r.ColorMode));
    DrawChannelMarker(canvas, channel, r.OffsetText[channel], r.ScaleText[channel], r.TriggerMode,
                      r.FFTDisplayText, p.s8FFTScreen);
    if (peak)
        DrawPeakTrace(canvas, r.channelWave(channel), r.channelPeak(channel), r.Points, channel, p,
                      r.TriggerMode, r.FFTDisplayText);
    else
        DrawChannelTrace(canvas, r.channelWave(channel), r.Points, channel, p, r.TriggerMode,
                         r.FFTDisplayText);
}

void drawMath(const WaveCanvas& canvas, const WaveRecord& r)
{
    const WaveParameter& p = r.Parameter;
    canvas.surface.setForeColor(ChannelColor(MathSource, r.ColorMode));
    DrawMathLegend(canvas, p, r.TriggerMode, r.FFTDisplayText);
    const bool fftOn = IsDisplayOn(r.FFTDisplayText);
    if (!fftOn && p.s8MathEnabled_Stop == 1) DrawMathTrace(canvas, r.WaveMath, r.Points, p, r.TriggerMode);
    if (fftOn && p.s8FFTEnabled_Stop == 1) DrawFftTrace(canvas, r.WaveFFT, r.Points, p, r.TriggerMode);
}

void drawTimeBase(const WaveCanvas& canvas, const WaveRecord& r)
{
    if (IsAlternation(r.TriggerMode))
        DrawAltTimeMarkers(canvas, r.TimeScaleAText, r.TimeScaleBText, r.TimeOffsetAText, r.TimeOffsetBText,
                           r.ColorMode);
    else
        DrawTimeMarker(canvas, r.TimeScaleText, r.TimeOffsetText, r.ColorMode);
}

bool anyChannelShown(const WaveRecord& r)
{
    for (int channel = 1; channel <= 4; ++channel)
        if (channelShown(r, channel)) return true;
    return false;
}

// The one instrument access of a picture: in alternate trigger the source pair
// decides where CH2 and CH3 go, for their markers and traces alike.
WaveCanvas withSourcePair(const WaveCanvas& canvas, const WaveRecord& r)
{
    WaveCanvas asked = canvas;
    if (IsAlternation(r.TriggerMode) && anyChannelShown(r)) asked.PairOrdered = AskChannelPairOrdered();
    return asked;
}

} // namespace

void DrawOSC(const WaveCanvas& canvas, const WaveRecord& record)
{
    if (!record.HasData) return;
    if (record.YTMode || record.RollMode) {
        PeakFlags peaks;
        GetPeakStates(record.Parameter, peaks);
        const WaveCanvas placed = withSourcePair(canvas, record);
        for (int channel = 1; channel <= 4; ++channel)
            if (channelShown(record, channel)) drawChannel(placed, record, channel, peaks[channel]);
        if (record.ShowMath && record.PrevShow[5]) drawMath(canvas, record);
        drawTimeBase(canvas, record);
    } else if (record.XYMode) {
        canvas.surface.setForeColor(PaletteFor(record.ColorMode).xyTrace);
        DrawXyTrace(canvas, record.WaveCH1, record.WaveCH2, record.Points);
        DrawXyLegend(canvas, record.ScaleText[1], record.ScaleText[2], record.ColorMode);
    }
}
