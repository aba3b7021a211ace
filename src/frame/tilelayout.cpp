#include "frame/tilelayout.h"

#include <algorithm>

namespace {

// The start and length of piece `index` of `count` pieces over a span.
std::pair<int, int> piece(int start, int length, int count, int index)
{
    const int size = length / count;
    const int from = start + index * size;
    const int to = index == count - 1 ? start + length : from + size;
    return {from, to - from};
}

} // namespace

QList<QRect> TileRects(const QRect& area, int count, bool horizontal)
{
    QList<QRect> rects;
    for (int i = 0; i < count; ++i) {
        if (horizontal) {
            const auto [top, height] = piece(area.top(), area.height(), count, i);
            rects.append(QRect(area.left(), top, area.width(), height));
        } else {
            const auto [left, width] = piece(area.left(), area.width(), count, i);
            rects.append(QRect(left, area.top(), width, area.height()));
        }
    }
    return rects;
}

QList<QRect> IconRects(const QRect& area, int count, const QSize& iconSize)
{
    QList<QRect> rects;
    if (iconSize.width() <= 0 || iconSize.height() <= 0) return rects;
    const int perRow = std::max(1, area.width() / iconSize.width());
    for (int i = 0; i < count; ++i) {
        const int left = area.left() + (i % perRow) * iconSize.width();
        const int top = area.bottom() + 1 - (i / perRow + 1) * iconSize.height();
        rects.append(QRect(QPoint(left, top), iconSize));
    }
    return rects;
}
