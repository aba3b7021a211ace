// The trigger-position markers on the top edge of each time base, and the
// delay and time scale legends.

#include "wave/drawtimemarker.h"

#include "text/valuetext.h"
#include "wave/wavecolors.h"

#include <optional>

namespace {

// p = 150 - (offset / scale) 25: the trigger's column in unscaled pixels. A zero
// scale is the classic's division fault and draws no marker.
std::optional<double> triggerColumn(const QString& scaleText, const QString& offsetText)
{
    const double scale = ParseTimeText(scaleText);
    if (scale == 0) return std::nullopt;
    return 150 - (ParseTimeText(offsetText) / scale) * 25;
}

// The fixed triangle over the centre (its tip on row Y) and the T arrow at p,
// pointing out of the picture when the trigger lies beyond either edge.
void drawTriggerMarker(Surface& s, double p, double z, double triangleTop, double Y)
{
    const double c = 150 * z + 25 - 4;
    DrawOutline(s, {{c, triangleTop}, {c + 8, triangleTop}, {c + 4, triangleTop + 4}});
    if (p <= 3) {
        DrawOutline(s, {{42, Y}, {30, Y}, {26, Y + 5}, {30, Y + 10}, {42, Y + 10}});
        s.text(QPointF(33, Y), QStringLiteral("T"), true);
    } else if (p >= 296) {
        const double X = 300 * z + 8;
        DrawOutline(s, {{X, Y}, {X + 12, Y}, {X + 16, Y + 5}, {X + 12, Y + 10}, {X, Y + 10}});
        s.text(QPointF(X + 3, Y), QStringLiteral("T"), true);
    } else {
        const double X = p * z + 21;
        DrawOutline(s, {{X, Y}, {X + 8, Y}, {X + 8, Y + 10}, {X + 4, Y + 14}, {X, Y + 10}});
        s.text(QPointF(X + 1, Y + 1), QStringLiteral("T"), true);
    }
}

} // namespace

void DrawTriggerMarker(const WaveCanvas& canvas, const QString& timeScaleText, const QString& timeOffsetText,
                       bool lowerHalf, bool colorMode)
{
    if (!triggerColumn(timeScaleText, timeOffsetText)) return;
    canvas.surface.setForeColor(PaletteFor(colorMode).maker);
    DrawTriggerMark(canvas, timeScaleText, timeOffsetText, lowerHalf);
}

void DrawTimeMarker(const WaveCanvas& canvas, const QString& timeScaleText, const QString& timeOffsetText,
                    bool colorMode)
{
    const std::optional<double> p = triggerColumn(timeScaleText, timeOffsetText);
    if (!p) return;
    const WavePalette& colors = PaletteFor(colorMode);
    const double z = canvas.Zoom;
    Surface& s = canvas.surface;
    s.setForeColor(colors.maker);
    drawTriggerMarker(s, *p, z, 26, 30);
    s.text(QPointF(GridMargin + 200 * z, GridMargin + 203 * z), QStringLiteral("Delay:") + timeOffsetText,
           true);
    s.setForeColor(colors.timeScale);
    s.text(QPointF(GridMargin + 150 * z, GridMargin + 203 * z), timeScaleText, false);
}

void DrawTriggerMark(const WaveCanvas& canvas, const QString& timeScaleText, const QString& timeOffsetText,
                     bool lowerHalf)
{
    const double lift = lowerHalf ? 100 * canvas.Zoom : 0;
    if (const std::optional<double> p = triggerColumn(timeScaleText, timeOffsetText))
        drawTriggerMarker(canvas.surface, *p, canvas.Zoom, lift + 26, lift + 30);
}

void DrawAltTimeMarkers(const WaveCanvas& canvas, const QString& scaleAText, const QString& scaleBText,
                        const QString& offsetAText, const QString& offsetBText, bool colorMode)
{
    const std::optional<double> p1 = triggerColumn(scaleAText, offsetAText);
    const std::optional<double> p2 = triggerColumn(scaleBText, offsetBText);
    if (!p1 || !p2) return;
    const WavePalette& colors = PaletteFor(colorMode);
    const double z = canvas.Zoom;
    Surface& s = canvas.surface;
    s.setForeColor(colors.maker);
    drawTriggerMarker(s, *p1, z, 26, 30);
    drawTriggerMarker(s, *p2, z, 100 * z + 26, 100 * z + 30);
    s.text(QPointF(GridMargin + 150 * z, GridMargin + 203 * z), QStringLiteral("Delay1: ") + offsetAText,
           true);
    s.text(QPointF(GridMargin + 138 * z, GridMargin + 85 * z), scaleAText, false);
    s.setForeColor(colors.altTimeBLegend);
    s.text(QPointF(GridMargin + 230 * z, GridMargin + 203 * z), QStringLiteral("Delay2: ") + offsetBText,
           true);
    s.text(QPointF(GridMargin + 138 * z, GridMargin + 185 * z), scaleBText, false);
}
