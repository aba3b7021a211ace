#include "wave/wavecanvas.h"

#include <algorithm>
#include <cmath>

namespace {

double clampZoom(double zoom)
{
    if (!(zoom >= MinZoom)) return MinZoom;
    return std::min(zoom, MaxZoom);
}

std::optional<int> roundWithin(double value, double low, double high)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= low && rounded <= high)) return std::nullopt;
    return static_cast<int>(rounded);
}

} // namespace

WaveCanvas::WaveCanvas(Surface& surface, double zoom, bool modelHasBFlag)
    : surface(surface), Zoom(clampZoom(zoom)), modelHasBFlag(modelHasBFlag)
{
}

std::optional<int> RoundToInt16(double value)
{
    return roundWithin(value, -32768, 32767);
}

std::optional<int> RoundToInt32(double value)
{
    return roundWithin(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

double RowMap::operator()(int sample) const
{
    return y0 + std::min(sample + lift, cap) * factor;
}

RowMap FullScreenRows(double zoom)
{
    return RowMap{GridMargin, zoom};
}

RowMap HalfScreenRows(double zoom, bool lower)
{
    return RowMap{lower ? GridMargin + 100 * zoom : GridMargin, zoom / 2};
}

void DrawOutline(Surface& surface, std::initializer_list<QPointF> points)
{
    if (points.size() < 2) return;
    const QPointF* p = points.begin();
    surface.line(p[0], p[1]);
    for (std::size_t i = 2; i < points.size(); ++i)
        surface.lineTo(p[i]);
    surface.lineTo(p[0]);
}
