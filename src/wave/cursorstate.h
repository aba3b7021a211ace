#pragma once
// The measuring cursors of a wave picture: two vertical and two horizontal lines
// for the upper (or only) screen and a second set for the lower half of a split
// screen. Positions are pixels of the picture, margin and zoom included. The
// window (wave view or memory view) owns one CursorState; nothing here is global.

#include <QSizeF>
#include <array>
#include <cstdint>

enum class CursorId : int { X1, X2, X3, X4, Y1, Y2, Y3, Y4 };
inline constexpr int CursorCount = 8;

inline bool IsVerticalCursor(CursorId id)
{
    return static_cast<int>(id) <= static_cast<int>(CursorId::X4);
}

struct CursorState {
    double CursorX1 = 52;    // 300/12 + 25 + 2
    double CursorX2 = 297;   // 300/12 x 11 + 25 - 3
    double CursorX3 = 79;    // 2 x 25 + 25 + 4
    double CursorX4 = 270;   // 25 x 10 + 25 - 5
    double CursorY1 = 59;    // 200/8 + 25 + 9
    int16_t CursorY2 = 259;  // 200/8 x 7 + 25 + 59
    double CursorY3 = 162.5; // 200/16 x 11 + 25
    int16_t CursorY4 = 254;  // 200/16 x 18 + 25 + 4
    bool CursorXShown = false;
    bool CursorYShown = false;
    std::array<bool, CursorCount> Dragging{}; // indexed by CursorId: held by the mouse

    double at(CursorId id) const;
    // CursorY2 and CursorY4 are whole numbers: a value is rounded to nearest, ties
    // to even, and held within the 16-bit range.
    void set(CursorId id, double value);
    bool dragging(CursorId id) const { return Dragging[static_cast<std::size_t>(id)]; }
};

// What the cursor routines need of the picture: its zoom and whether its grid is
// cut in an upper and a lower half.
struct CursorGeometry {
    double Zoom = 1;
    bool SplitScreen = false;
};

// The eight start values; shown flags and drag flags are left as they are.
void CursorInit(CursorState& cursors);

// Keeps the shown cursors inside the grid, 2 pixels from its edges: vertical
// cursors within 27 .. 25 + 300z - 2; horizontal ones within 27 .. 25 + 200z - 2,
// or on a split screen the upper pair within 27 .. 25 + 100z - 2 and the lower
// pair within 25 + 100z + 2 .. 25 + 200z - 2.
void ClampCursors(CursorState& cursors, const CursorGeometry& geometry);

// The picture changed size (zoom or best fit): every cursor keeps its relative
// place, X' = (X - 25) / old width x new width + 25, and the same in height. A
// size that is empty or no number leaves the cursors where they are. Halving only
// the height gives the rows of a screen cut in two halves.
void RescaleCursors(CursorState& cursors, QSizeF oldSize, QSizeF newSize);
