#include "wave/cursordrawing.h"

#include "wave/surface.h"
#include "wave/wavecanvas.h"

namespace {

constexpr double ArrowSize = 5;

// The band a cursor line runs through: from `start` to `end` on the other axis.
struct Band {
    double start;
    double end;
};

void verticalArrows(Surface& s, double x, Band band)
{
    DrawOutline(s, {{x - ArrowSize, band.start}, {x + ArrowSize, band.start}, {x, band.start + ArrowSize}});
    DrawOutline(s, {{x - ArrowSize, band.end}, {x + ArrowSize, band.end}, {x, band.end - ArrowSize}});
}

void horizontalArrows(Surface& s, double y, Band band)
{
    DrawOutline(s, {{band.start, y - ArrowSize}, {band.start, y + ArrowSize}, {band.start + ArrowSize, y}});
    DrawOutline(s, {{band.end, y - ArrowSize}, {band.end, y + ArrowSize}, {band.end - ArrowSize, y}});
}

// A pair of cursors: dashed lines first, then the solid arrows at both ends of each.
void drawPair(Surface& s, const CursorState& c, std::initializer_list<CursorId> pair, Band band)
{
    s.setDashStyle(DashStyle::DashDotDot);
    for (CursorId id : pair) {
        const double at = c.at(id);
        if (IsVerticalCursor(id))
            s.line({at, band.start + ArrowSize}, {at, band.end - ArrowSize});
        else
            s.line({band.start + ArrowSize, at}, {band.end - ArrowSize, at});
    }
    s.setDashStyle(DashStyle::Solid);
    for (CursorId id : pair) {
        if (IsVerticalCursor(id))
            verticalArrows(s, c.at(id), band);
        else
            horizontalArrows(s, c.at(id), band);
    }
}

void drawVerticalCursors(Surface& s, const CursorState& c, const CursorGeometry& g)
{
    const double middle = GridMargin + 100 * g.Zoom;
    const double bottom = GridMargin + GridHeight * g.Zoom;
    if (!g.SplitScreen) {
        drawPair(s, c, {CursorId::X1, CursorId::X2}, {GridMargin, bottom});
        return;
    }
    drawPair(s, c, {CursorId::X1, CursorId::X2}, {GridMargin, middle});
    drawPair(s, c, {CursorId::X3, CursorId::X4}, {middle, bottom});
}

void drawHorizontalCursors(Surface& s, const CursorState& c, const CursorGeometry& g)
{
    const Band across{GridMargin, GridMargin + GridWidth * g.Zoom};
    drawPair(s, c, {CursorId::Y1, CursorId::Y2}, across);
    if (g.SplitScreen) drawPair(s, c, {CursorId::Y3, CursorId::Y4}, across);
}

} // namespace

std::unique_ptr<QImageSurface> PrepareCursorBuffer(const QImage& picture, bool colorMode)
{
    auto buffer = picture.isNull() ? std::make_unique<QImageSurface>(QSize(1, 1))
                                   : std::make_unique<QImageSurface>(picture);
    buffer->setBackColor(CursorPaletteFor(colorMode).textBack);
    return buffer;
}

void ReleaseCursorBuffer(std::unique_ptr<QImageSurface>& buffer)
{
    buffer.reset();
}

void DrawCursors(Surface& surface, CursorState& cursors, const ReadoutInput& input)
{
    ClampCursors(cursors, input.geometry);
    const CursorPalette& palette = CursorPaletteFor(input.ColorMode);
    surface.setBackColor(palette.textBack);
    surface.setForeColor(palette.pen);
    surface.setLineWidth(1);
    if (cursors.CursorXShown) drawVerticalCursors(surface, cursors, input.geometry);
    if (cursors.CursorYShown) drawHorizontalCursors(surface, cursors, input.geometry);
    DrawReadouts(surface, DisplayCursorM(cursors, input));
}

QImage DrawCursors(const QImage& picture, CursorState& cursors, const ReadoutInput& input)
{
    std::unique_ptr<QImageSurface> buffer = PrepareCursorBuffer(picture, input.ColorMode);
    DrawCursors(*buffer, cursors, input);
    QImage shown = buffer->image();
    ReleaseCursorBuffer(buffer);
    return shown;
}
