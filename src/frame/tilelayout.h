#pragma once
// Where the child windows go when the Window menu arranges them.

#include <QList>
#include <QRect>

// The classic arrange modes: 0 cascade, 1 tile horizontal, 2 tile vertical, 3 arrange icons.
enum ArrangeMode : int {
    ArrangeCascade = 0,
    ArrangeTileHorizontal = 1,
    ArrangeTileVertical = 2,
    ArrangeIcons = 3
};

// Tile horizontal stacks count windows top to bottom, each the full width; tile
// vertical sets them side by side, each the full height. The last one takes what
// the division leaves over, so the tiles cover the area exactly.
QList<QRect> TileRects(const QRect& area, int count, bool horizontal);

// Minimised windows of the given size lined up from the bottom left corner, row
// above row when a row is full.
QList<QRect> IconRects(const QRect& area, int count, const QSize& iconSize);
