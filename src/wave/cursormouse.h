#pragma once
// The mouse over a wave picture: which cursor a press takes, where a held cursor
// goes, which pointer the picture shows. Pure functions of the cursor state, so
// both the wave view and the memory view use them.

#include "wave/cursorstate.h"

#include <QPointF>
#include <optional>

// A cursor is hit when the pointer lies strictly between cursor - 3 and cursor + 3.
inline constexpr double CursorHitTolerance = 3;

// The cursors one press takes: at most one vertical and one horizontal cursor.
struct CursorHit {
    std::optional<CursorId> vertical;
    std::optional<CursorId> horizontal;
    bool operator==(const CursorHit&) const = default;
};

// Tested in order, the first hit wins: with CursorXShown X1 then X2 (on a split
// screen X3 then X4 when the pointer is at or below the middle row 25 + 100z);
// with CursorYShown Y1 then Y2 (Y3, Y4 in the lower half). Hidden cursors are never hit.
CursorHit HitCursors(const CursorState& cursors, QPointF at, const CursorGeometry& geometry);

// A press: the hit cursors are taken (their drag flags set). Returns what was taken.
CursorHit PressCursors(CursorState& cursors, QPointF at, const CursorGeometry& geometry);

// A move with the button held: a taken vertical cursor follows the pointer's x, a
// taken horizontal one its y. True when a cursor moved, and the picture is to be
// redrawn (DrawCursors then clamps it to the grid).
bool DragCursors(CursorState& cursors, QPointF at);

// A release lets go of all eight cursors.
void ReleaseCursors(CursorState& cursors);

// The pointer shapes of the picture, by their classic numbers.
enum class PointerShape : int { Default = 0, NorthSouth = 7, EastWest = 9 };

// East-west while a vertical cursor is held, north-south while a horizontal one
// is; with none held, the same over a shown cursor inside the grid, else Default.
PointerShape PointerShapeAt(const CursorState& cursors, QPointF at, const CursorGeometry& geometry);
