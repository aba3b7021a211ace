#pragma once
// The cursor layer of a wave picture. The clean picture (grid and traces) is
// kept; each DrawCursors works on a copy of it, so a drag step costs one copy of
// the picture and a few lines, and the traces are not redrawn.

#include "wave/cursorpalette.h"
#include "wave/cursorstate.h"
#include "wave/qimagesurface.h"
#include "wave/readout.h"

#include <QImage>
#include <memory>

class Surface;

// A memory surface of the picture's size holding a copy of the picture, with the
// cursor layer's text background set.
std::unique_ptr<QImageSurface> PrepareCursorBuffer(const QImage& picture, bool colorMode);
void ReleaseCursorBuffer(std::unique_ptr<QImageSurface>& buffer);

// Clamps the cursors, then draws the shown ones (dashed lines, solid arrows at
// both ends) and the readouts on `surface`.
void DrawCursors(Surface& surface, CursorState& cursors, const ReadoutInput& input);
// The same over a copy of the clean picture: returns the picture to show.
QImage DrawCursors(const QImage& picture, CursorState& cursors, const ReadoutInput& input);
