// The channel marker: an arrow at the channel's zero row, or a clipped arrow at
// the edge when the zero row lies outside the picture, and the channel legend.

#include "wave/drawmarker.h"

#include "acquire/waverecord.h"
#include "text/valuetext.h"
#include "wave/displaytexts.h"

#include <array>

namespace {

// Rows a clipped marker is drawn at, and whether an inside marker moves to the lower half.
struct MarkerRule {
    double rowWhenBelow = 200;
    double rowWhenAbove = 0;
    bool lowered = false;
};

// The table is not symmetrical (CH4's top clip follows the split screen, its
// bottom clip does not); the instrument's screen draws it this way.
MarkerRule markerRule(int channel, bool alt, bool ordered, double div)
{
    switch (channel) {
    case 2: return {alt && !ordered ? 100.0 : 200.0, alt && ordered ? 100.0 : 0.0, alt && ordered};
    case 3: return {alt && ordered ? 100.0 : 200.0, alt && !ordered ? 100.0 : 0.0, alt && !ordered};
    case 4: return {200, div == 2 ? 100.0 : 0.0, alt};
    default: return {200 / div, 0, false};
    }
}

void drawBelowMarker(Surface& s, double y, double z, int channel)
{
    const double X = 12, Y = GridMargin + y * z - 13 - 2;
    DrawOutline(s, {{X, Y}, {X + 10, Y}, {X + 10, Y + 13}, {X + 5, Y + 17}, {X, Y + 13}});
    s.text(QPointF(X + 2, channel == 1 ? Y + 2 : Y + 1), QString::number(channel), true);
}

void drawAboveMarker(Surface& s, double y, double z, int channel)
{
    const double X = 12, Y = GridMargin + y * z + 13 + 2;
    DrawOutline(s, {{X, Y}, {X + 10, Y}, {X + 10, Y - 13}, {X + 5, Y - 17}, {X, Y - 13}});
    s.text(QPointF(X + 2, channel == 2 ? Y - 14 : Y - 13), QString::number(channel), true);
}

void drawInsideMarker(Surface& s, double y, double lift, double z, int channel)
{
    const double X = 6, Y = GridMargin + lift + y * z - 5;
    DrawOutline(s, {{X, Y}, {X + 13, Y}, {X + 17, Y + 5}, {X + 13, Y + 10}, {X, Y + 10}});
    s.text(QPointF(X + 4, Y - 1), QString::number(channel), true);
}

void drawChannelLegend(Surface& s, int channel, const QString& scaleText, double z)
{
    const bool right = channel == 2 || channel == 4;
    const bool second = channel >= 3;
    const QPointF at(right ? GridMargin + 75 * z : GridMargin, GridMargin + (second ? 213 : 203) * z);
    s.text(at, QStringLiteral("CH%1 ").arg(channel) + scaleText, false);
}

// The arrow at row y of the unscaled grid, or clipped at the rule's rows.
void drawMarker(const WaveCanvas& canvas, int channel, double y, double div, const MarkerRule& rule)
{
    const double z = canvas.Zoom;
    if (y >= 200) {
        drawBelowMarker(canvas.surface, rule.rowWhenBelow, z, channel);
    } else if (y <= 0) {
        drawAboveMarker(canvas.surface, rule.rowWhenAbove, z, channel);
    } else {
        const double lift = rule.lowered ? RoundToInt16(100 * z).value_or(0) : 0;
        drawInsideMarker(canvas.surface, y / div, lift, z, channel);
    }
}

} // namespace

void DrawChannelMarker(const WaveCanvas& canvas, int channel, const QString& offsetText,
                       const QString& scaleText, const QString& triggerMode, const QString& fftDisplayText,
                       int8_t s8FFTScreen, bool withLegend)
{
    if (channel < 1 || channel > 4) return;
    const double scale = ParseVoltText(scaleText);
    // A zero scale is the classic's division fault: the marker ends here, the trace still draws.
    if (scale == 0) return;
    const double y = 100 - (ParseVoltText(offsetText) / scale) * 25;
    const bool alt = IsAlternation(triggerMode);
    const bool ordered = alt && canvas.PairOrdered;
    const double div = SplitScreenOf(triggerMode, fftDisplayText, s8FFTScreen) ? 2 : 1;
    drawMarker(canvas, channel, y, div, markerRule(channel, alt, ordered, div));
    if (withLegend) drawChannelLegend(canvas.surface, channel, scaleText, canvas.Zoom);
}

void DrawChannelMark(const WaveCanvas& canvas, int channel, const QString& offsetText,
                     const QString& scaleText)
{
    DrawChannelMarker(canvas, channel, offsetText, scaleText, QString(), QString(), 1, false);
}
