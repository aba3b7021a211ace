#include "wave/cursorstate.h"

#include "wave/wavecanvas.h"

#include <algorithm>
#include <cmath>

namespace {

int16_t wholeRow(double value)
{
    if (std::isnan(value)) return 0;
    const double rounded = std::nearbyint(std::clamp(value, -32768.0, 32767.0));
    return static_cast<int16_t>(rounded);
}

void clampTo(CursorState& cursors, std::initializer_list<CursorId> ids, double low, double high)
{
    for (CursorId id : ids)
        cursors.set(id, std::clamp(cursors.at(id), low, std::max(low, high)));
}

// X' = (X - 25) / old x new + 25, kept as it is when the old extent is no size.
double rescaled(double position, double oldExtent, double newExtent)
{
    if (!(oldExtent > 0) || !std::isfinite(newExtent)) return position;
    return (position - GridMargin) / oldExtent * newExtent + GridMargin;
}

} // namespace

double CursorState::at(CursorId id) const
{
    switch (id) {
    case CursorId::X1: return CursorX1;
    case CursorId::X2: return CursorX2;
    case CursorId::X3: return CursorX3;
    case CursorId::X4: return CursorX4;
    case CursorId::Y1: return CursorY1;
    case CursorId::Y2: return CursorY2;
    case CursorId::Y3: return CursorY3;
    case CursorId::Y4: return CursorY4;
    }
    return 0;
}

void CursorState::set(CursorId id, double value)
{
    switch (id) {
    case CursorId::X1: CursorX1 = value; break;
    case CursorId::X2: CursorX2 = value; break;
    case CursorId::X3: CursorX3 = value; break;
    case CursorId::X4: CursorX4 = value; break;
    case CursorId::Y1: CursorY1 = value; break;
    case CursorId::Y2: CursorY2 = wholeRow(value); break;
    case CursorId::Y3: CursorY3 = value; break;
    case CursorId::Y4: CursorY4 = wholeRow(value); break;
    }
}

void CursorInit(CursorState& cursors)
{
    const CursorState start;
    for (int i = 0; i < CursorCount; ++i)
        cursors.set(CursorId(i), start.at(CursorId(i)));
}

void ClampCursors(CursorState& cursors, const CursorGeometry& geometry)
{
    const double z = geometry.Zoom;
    const double low = GridMargin + 2;
    const double middle = GridMargin + 100 * z;
    const double bottom = GridMargin + 200 * z - 2;
    if (cursors.CursorXShown) {
        const double right = GridMargin + 300 * z - 2;
        clampTo(cursors, {CursorId::X1, CursorId::X2}, low, right);
        if (geometry.SplitScreen) clampTo(cursors, {CursorId::X3, CursorId::X4}, low, right);
    }
    if (!cursors.CursorYShown) return;
    if (!geometry.SplitScreen) {
        clampTo(cursors, {CursorId::Y1, CursorId::Y2}, low, bottom);
        return;
    }
    clampTo(cursors, {CursorId::Y1, CursorId::Y2}, low, middle - 2);
    clampTo(cursors, {CursorId::Y3, CursorId::Y4}, middle + 2, bottom);
}

void RescaleCursors(CursorState& cursors, QSizeF oldSize, QSizeF newSize)
{
    for (int i = 0; i < CursorCount; ++i) {
        const CursorId id = CursorId(i);
        const bool across = IsVerticalCursor(id);
        cursors.set(id, rescaled(cursors.at(id), across ? oldSize.width() : oldSize.height(),
                                 across ? newSize.width() : newSize.height()));
    }
}
