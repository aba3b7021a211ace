#include "wave/cursormouse.h"

#include "wave/wavecanvas.h"

namespace {

bool near(double pointer, double cursor)
{
    return pointer > cursor - CursorHitTolerance && pointer < cursor + CursorHitTolerance;
}

// The first of a pair that the pointer coordinate is near.
std::optional<CursorId> firstNear(const CursorState& cursors, double pointer, CursorId first, CursorId second)
{
    if (near(pointer, cursors.at(first))) return first;
    if (near(pointer, cursors.at(second))) return second;
    return std::nullopt;
}

bool inLowerHalf(QPointF at, const CursorGeometry& geometry)
{
    return geometry.SplitScreen && at.y() >= GridMargin + 100 * geometry.Zoom;
}

bool insideGrid(QPointF at, double zoom)
{
    return at.x() >= GridMargin && at.x() <= GridMargin + GridWidth * zoom && at.y() >= GridMargin &&
           at.y() <= GridMargin + GridHeight * zoom;
}

PointerShape shapeOf(bool vertical, bool horizontal)
{
    if (vertical) return PointerShape::EastWest;
    if (horizontal) return PointerShape::NorthSouth;
    return PointerShape::Default;
}

} // namespace

CursorHit HitCursors(const CursorState& cursors, QPointF at, const CursorGeometry& geometry)
{
    const bool lower = inLowerHalf(at, geometry);
    CursorHit hit;
    if (cursors.CursorXShown)
        hit.vertical = lower ? firstNear(cursors, at.x(), CursorId::X3, CursorId::X4)
                             : firstNear(cursors, at.x(), CursorId::X1, CursorId::X2);
    if (cursors.CursorYShown)
        hit.horizontal = lower ? firstNear(cursors, at.y(), CursorId::Y3, CursorId::Y4)
                               : firstNear(cursors, at.y(), CursorId::Y1, CursorId::Y2);
    return hit;
}

CursorHit PressCursors(CursorState& cursors, QPointF at, const CursorGeometry& geometry)
{
    const CursorHit hit = HitCursors(cursors, at, geometry);
    if (hit.vertical) cursors.Dragging[static_cast<std::size_t>(*hit.vertical)] = true;
    if (hit.horizontal) cursors.Dragging[static_cast<std::size_t>(*hit.horizontal)] = true;
    return hit;
}

bool DragCursors(CursorState& cursors, QPointF at)
{
    if (!cursors.CursorXShown && !cursors.CursorYShown) return false;
    bool moved = false;
    for (int i = 0; i < CursorCount; ++i) {
        const CursorId id = CursorId(i);
        if (!cursors.dragging(id)) continue;
        cursors.set(id, IsVerticalCursor(id) ? at.x() : at.y());
        moved = true;
    }
    return moved;
}

void ReleaseCursors(CursorState& cursors)
{
    cursors.Dragging.fill(false);
}

PointerShape PointerShapeAt(const CursorState& cursors, QPointF at, const CursorGeometry& geometry)
{
    bool heldVertical = false, heldHorizontal = false;
    for (int i = 0; i < CursorCount; ++i) {
        if (!cursors.dragging(CursorId(i))) continue;
        (IsVerticalCursor(CursorId(i)) ? heldVertical : heldHorizontal) = true;
    }
    if (heldVertical || heldHorizontal) return shapeOf(heldVertical, heldHorizontal);
    if (!insideGrid(at, geometry.Zoom)) return PointerShape::Default;
    const CursorHit hit = HitCursors(cursors, at, geometry);
    return shapeOf(hit.vertical.has_value(), hit.horizontal.has_value());
}
