// The background: frame, centre cross, ticks, dotted grid and the maker text.

#include "wave/drawgrid.h"

#include "wave/wavecolors.h"

namespace {

// One dotted row: pixels at (k + 25, row) for k from 0 to 300z in steps of `step`.
void dottedRow(Surface& s, double row, double z, double step)
{
    ForSteps(0, GridWidth * z, step, [&](double k) { s.setPixel(QPointF(k + GridMargin, row)); });
}

// One dotted column: pixels at (column, k + 25) for k from 0 to 200z.
void dottedColumn(Surface& s, double column, double z, double step)
{
    ForSteps(0, GridHeight * z, step, [&](double k) { s.setPixel(QPointF(column, k + GridMargin)); });
}

void drawFrameAndCross(Surface& s, double z)
{
    const double right = 25 + 300 * z, bottom = 25 + 200 * z;
    s.setLineWidth(2);
    s.line(QPointF(25, 25), QPointF(right, 25));
    s.line(QPointF(25, 25), QPointF(25, bottom));
    s.lineTo(QPointF(right, bottom));
    s.lineTo(QPointF(right, 25));
    s.setLineWidth(1);
    s.line(QPointF(25, 25 + 100 * z), QPointF(right, 25 + 100 * z));
    s.line(QPointF(25 + 150 * z, 25), QPointF(25 + 150 * z, bottom));
}

// The bottom and right edges use 2i and 3i where the top and left use i and 2i:
// the instrument's picture has that unevenness and the copy keeps it.
void drawTicks(Surface& s, double z, double v)
{
    ForSteps(1.0, z, 0.1, [&](double i) {
        dottedRow(s, 25 + i, z, 5 * z);
        dottedRow(s, 25 + 2 * i, z, 25 * z);
        dottedRow(s, 25 + 100 * z - i, z, 5 * z);
        dottedRow(s, 25 + 100 * z - 2 * i, z, 25 * z);
        dottedRow(s, 25 + 100 * z + i, z, 5 * z);
        dottedRow(s, 25 + 100 * z + 2 * i, z, 25 * z);
        dottedRow(s, 25 + 200 * z - 2 * i, z, 5 * z);
        dottedRow(s, 25 + 200 * z - 3 * i, z, 25 * z);
        dottedColumn(s, 25 + i, z, v * z);
        dottedColumn(s, 25 + 2 * i, z, 25 * z);
        dottedColumn(s, 25 + 150 * z - i, z, v * z);
        dottedColumn(s, 25 + 150 * z - 2 * i, z, 25 * z);
        dottedColumn(s, 25 + 150 * z + i, z, v * z);
        dottedColumn(s, 25 + 150 * z + 2 * i, z, 25 * z);
        dottedColumn(s, 25 + 300 * z - 2 * i, z, v * z);
        dottedColumn(s, 25 + 300 * z - 3 * i, z, 25 * z);
    });
}

void drawDottedGrid(Surface& s, double z)
{
    ForSteps(25, 25 + 200 * z, 25 * z, [&](double y) { dottedRow(s, y, z, 5 * z); });
    ForSteps(25, 25 + 300 * z, 25 * z, [&](double x) { dottedColumn(s, x, z, 5 * z); });
}

// A split screen gets quarter rows near the middle of each half, rows every
// half division and columns dotted at the split's own pitch.
void drawSplitDottedGrid(Surface& s, double z)
{
    ForSteps(1.0, z, 0.1, [&](double i) {
        dottedRow(s, 25 + 50 * z - i, z, 5 * z);
        dottedRow(s, 25 + 150 * z + i, z, 5 * z);
    });
    ForSteps(25, 25 + 200 * z, 12.5 * z, [&](double y) { dottedRow(s, y, z, 5 * z); });
    ForSteps(25, 25 + 300 * z, 25 * z, [&](double x) { dottedColumn(s, x, z, 6.25 * z); });
}

} // namespace

void DrawScrGrid(const WaveCanvas& canvas, const WaveRecord& record)
{
    const WavePalette& colors = PaletteFor(record.ColorMode);
    const double z = canvas.Zoom;
    Surface& s = canvas.surface;
    s.setBackColor(colors.background);
    s.setForeColor(colors.grid);
    s.clear();
    drawFrameAndCross(s, z);
    drawTicks(s, z, record.SplitScreen ? 6.25 : 5.0);
    if (record.GridOn) {
        if (record.SplitScreen)
            drawSplitDottedGrid(s, z);
        else
            drawDottedGrid(s, z);
    }
    s.setForeColor(colors.maker);
    s.text(QPointF(25, 10), QStringLiteral("KORVA"), false);
}
