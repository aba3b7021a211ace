// The X-Y picture: one dot per point, CH1 across and CH2 down.

#include "wave/drawxy.h"

#include "wave/tracerun.h"
#include "wave/wavecolors.h"

void DrawXyTrace(const WaveCanvas& canvas, const WaveArray& ch1, const WaveArray& ch2, int points)
{
    const double z = canvas.Zoom;
    Surface& s = canvas.surface;
    s.setLineWidth(2);
    for (int i = 1; i <= points && InsideArray(ch1, i) && InsideArray(ch2, i); ++i)
        s.setPixel(QPointF(GridMargin + (250 - double(ch1[i])) * z, GridMargin + ch2[i] * z));
    s.setLineWidth(1);
}

void DrawXyLegend(const WaveCanvas& canvas, const QString& ch1ScaleText, const QString& ch2ScaleText,
                  bool colorMode)
{
    const WavePalette& colors = PaletteFor(colorMode);
    const double z = canvas.Zoom;
    Surface& s = canvas.surface;
    s.setForeColor(colors.xyTrace);
    s.text(QPointF(GridMargin + 110 * z, 10), QStringLiteral("X-Y Mode"), false);
    s.setForeColor(colors.xyLegendCH1);
    s.text(QPointF(GridMargin, GridMargin + 204 * z), QStringLiteral("CH1 ") + ch1ScaleText, false);
    s.setForeColor(colors.xyLegendCH2);
    s.text(QPointF(GridMargin + 75 * z, GridMargin + 204 * z), QStringLiteral("CH2 ") + ch2ScaleText, false);
}
