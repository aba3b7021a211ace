#include "screen/screenpicture.h"

#include "files/filebytes.h"
#include "screen/screencanvas.h"
#include "screen/screenfont.h"

#include <algorithm>

namespace {

// The grid's top left pixel; it spans 300 columns and 200 rows.
constexpr int GridLeft = 10;
constexpr int GridTop = 20;
constexpr int GridWidth = 300;
constexpr int GridHeight = 200;
constexpr int Division = 25;
constexpr int TopTextRow = 3;
constexpr int TriggerMarkRow = 12;
constexpr int LegendRows[2] = {GridTop + GridHeight + 3, GridTop + GridHeight + 12};

constexpr int FileHeaderSize = 14;
constexpr int InfoHeaderSize = 40;
constexpr int PaletteSize = 256 * 4;
constexpr int PixelOffset = FileHeaderSize + InfoHeaderSize + PaletteSize;

int clipCode(int code)
{
    return std::clamp(code, 0, GridHeight - 1);
}
int rowOfCode(int code)
{
    return GridTop + clipCode(code);
}

void drawFrame(ScreenCanvas& canvas)
{
    const int right = GridLeft + GridWidth, bottom = GridTop + GridHeight;
    canvas.horizontalLine(GridLeft - 1, right, GridTop - 1, ScreenColour::Frame);
    canvas.horizontalLine(GridLeft - 1, right, bottom, ScreenColour::Frame);
    canvas.verticalLine(GridLeft - 1, GridTop - 1, bottom, ScreenColour::Frame);
    canvas.verticalLine(right, GridTop - 1, bottom, ScreenColour::Frame);
}

// Dotted division lines, every fifth pixel; in split screen the rows fall
// every half division so each half keeps four divisions of its own.
void drawDots(ScreenCanvas& canvas, bool split)
{
    const int rowStep = split ? Division / 2 : Division;
    for (int y = rowStep; y < GridHeight; y += rowStep)
        for (int x = 0; x < GridWidth; x += 5)
            canvas.setPixel(GridLeft + x, GridTop + y, ScreenColour::Dots);
    for (int x = Division; x < GridWidth; x += Division)
        for (int y = 0; y < GridHeight; y += 5)
            canvas.setPixel(GridLeft + x, GridTop + y, ScreenColour::Dots);
}

// The centre cross carries small ticks every fifth of a division.
void drawCentreCross(ScreenCanvas& canvas)
{
    const int cx = GridLeft + GridWidth / 2, cy = GridTop + GridHeight / 2;
    for (int x = 0; x <= GridWidth; x += 5)
        canvas.verticalLine(GridLeft + x, cy - 1, cy + 1, ScreenColour::Frame);
    for (int y = 0; y <= GridHeight; y += 5)
        canvas.horizontalLine(cx - 1, cx + 1, GridTop + y, ScreenColour::Frame);
}

void drawGrid(ScreenCanvas& canvas, bool split)
{
    drawDots(canvas, split);
    drawCentreCross(canvas);
    drawFrame(canvas);
}

int codeAt(const QVector<int>& codes, int i)
{
    return rowOfCode(codes[i]);
}

// Two points share a pixel column; each point joins the previous one with a
// vertical run, so steep edges stay closed.
void drawPlainTrace(ScreenCanvas& canvas, const ScreenTrace& trace, std::uint8_t colour)
{
    const int count = std::min<int>(trace.codes.size(), ScreenPoints);
    for (int i = 0; i < count; ++i) {
        const int from = codeAt(trace.codes, i > 0 ? i - 1 : i);
        canvas.verticalLine(GridLeft + i / 2, from, codeAt(trace.codes, i), colour);
    }
}

void drawPeakTrace(ScreenCanvas& canvas, const ScreenTrace& trace, std::uint8_t colour)
{
    const int count = std::min(
        {static_cast<int>(trace.codes.size()), static_cast<int>(trace.peakCodes.size()), ScreenPoints});
    for (int i = 0; i < count; ++i)
        canvas.verticalLine(GridLeft + i / 2, codeAt(trace.codes, i), codeAt(trace.peakCodes, i), colour);
}

void drawZeroMark(ScreenCanvas& canvas, const ScreenTrace& trace, std::uint8_t colour)
{
    // Clamped first, so no position can overflow the subtraction.
    const int row = rowOfCode(100 - std::clamp(trace.position, -GridHeight, GridHeight));
    canvas.text(2, row - GlyphHeight / 2, trace.mark.left(1), colour);
}

void drawTrace(ScreenCanvas& canvas, const ScreenTrace& trace)
{
    const std::uint8_t colour = paletteIndex(trace.colour);
    drawZeroMark(canvas, trace, colour);
    if (trace.peakCodes.isEmpty())
        drawPlainTrace(canvas, trace, colour);
    else
        drawPeakTrace(canvas, trace, colour);
}

// CH1's code runs across (higher voltage to the right), CH2's down the grid.
void drawXy(ScreenCanvas& canvas, const ScreenPicture& picture)
{
    const QVector<int>& xs = picture.traces[0].codes;
    const QVector<int>& ys = picture.traces[1].codes;
    const int count = std::min<int>(xs.size(), ys.size());
    for (int i = 0; i < count; ++i)
        canvas.setPixel(GridLeft + GridWidth / 2 + 100 - clipCode(xs[i]), rowOfCode(ys[i]),
                        ScreenColour::Green);
}

// A small arrow in the right margin pointing at the trigger level.
void drawTriggerLevel(ScreenCanvas& canvas, int code)
{
    const int row = rowOfCode(code), x = GridLeft + GridWidth + 2;
    for (int i = 0; i < 4; ++i)
        canvas.verticalLine(x + i, row - i, row + i, ScreenColour::Orange);
}

void drawTriggerPosition(ScreenCanvas& canvas, int column)
{
    const int x = GridLeft + std::clamp(column, 0, GridWidth - 1);
    canvas.text(x - GlyphWidth / 2, TriggerMarkRow, "T", ScreenColour::Orange);
}

void drawMarkers(ScreenCanvas& canvas, const ScreenPicture& picture)
{
    if (picture.triggerRow >= 0) drawTriggerLevel(canvas, picture.triggerRow);
    if (picture.triggerColumn >= 0) drawTriggerPosition(canvas, picture.triggerColumn);
}

void drawTopTexts(ScreenCanvas& canvas, const ScreenPicture& picture)
{
    canvas.text(2, TopTextRow, picture.runText, ScreenColour::Green);
    canvas.text(44, TopTextRow, "KORVA", ScreenColour::Orange);
    canvas.text(110, TopTextRow, picture.delayText, ScreenColour::White);
    const int right = ScreenWidth - 2 - textWidth(picture.triggerText);
    canvas.text(right, TopTextRow, picture.triggerText, ScreenColour::Orange);
}

// Two lines under the grid: CH1, CH2 and math above, CH3, CH4 and the time
// base below.
void drawLegends(ScreenCanvas& canvas, const ScreenPicture& picture)
{
    const int columns[5] = {2, 92, 2, 92, 182};
    const int lines[5] = {0, 0, 1, 1, 0};
    for (int n = 0; n < 5; ++n) {
        const ScreenTrace& trace = picture.traces[n];
        if (trace.on) canvas.text(columns[n], LegendRows[lines[n]], trace.legend, paletteIndex(trace.colour));
    }
    const int right = ScreenWidth - 2 - textWidth(picture.timeText);
    canvas.text(right, LegendRows[1], picture.timeText, ScreenColour::White);
}

void drawScreen(ScreenCanvas& canvas, const ScreenPicture& picture)
{
    drawGrid(canvas, picture.splitScreen);
    if (picture.xyMode) {
        drawXy(canvas, picture);
    } else {
        for (const ScreenTrace& trace : picture.traces)
            if (trace.on) drawTrace(canvas, trace);
        drawMarkers(canvas, picture);
    }
    drawTopTexts(canvas, picture);
    drawLegends(canvas, picture);
}

template <typename T> void put(QByteArray& out, int offset, T value)
{
    qToLittleEndian(value, out.data() + offset);
}

void writeHeaders(QByteArray& out)
{
    out[0] = 'B';
    out[1] = 'M';
    putLe<quint32>(out, 2, ScreenBmpSize);
    putLe<quint32>(out, 10, PixelOffset);
    putLe<quint32>(out, 14, InfoHeaderSize);
    putLe<qint32>(out, 18, ScreenWidth);
    putLe<qint32>(out, 22, ScreenHeight);
    putLe<quint16>(out, 26, 1); // planes
    putLe<quint16>(out, 28, 8); // bits per pixel
    putLe<quint32>(out, 30, 0); // no compression
    putLe<quint32>(out, 34, ScreenWidth * ScreenHeight);
    putLe<qint32>(out, 38, 3780); // 96 dots per inch
    putLe<qint32>(out, 42, 3780);
    putLe<quint32>(out, 46, 256); // colours used
    putLe<quint32>(out, 50, 256); // colours important
}

void writePalette(QByteArray& out)
{
    const ScreenPalette& palette = screenPalette();
    for (int i = 0; i < 256; ++i) {
        const int at = FileHeaderSize + InfoHeaderSize + i * 4;
        out[at] = static_cast<char>(qBlue(palette[i]));
        out[at + 1] = static_cast<char>(qGreen(palette[i]));
        out[at + 2] = static_cast<char>(qRed(palette[i]));
    }
}

// A bitmap keeps its bottom row first; the rows are a multiple of four
// bytes already, so there is no padding.
void writePixels(QByteArray& out, const QByteArray& topDown)
{
    for (int y = 0; y < ScreenHeight; ++y) {
        const int from = (ScreenHeight - 1 - y) * ScreenWidth;
        std::copy_n(topDown.constData() + from, ScreenWidth, out.data() + PixelOffset + y * ScreenWidth);
    }
}

ScreenTrace defaultTrace(QRgb colour, const QString& mark)
{
    ScreenTrace trace;
    trace.colour = colour;
    trace.mark = mark;
    return trace;
}

} // namespace

ScreenPicture defaultScreenPicture()
{
    ScreenPicture picture;
    picture.traces = {defaultTrace(qRgb(255, 255, 0), "1"), defaultTrace(qRgb(0, 255, 255), "2"),
                      defaultTrace(qRgb(255, 0, 255), "3"), defaultTrace(qRgb(0, 128, 255), "4"),
                      defaultTrace(qRgb(128, 0, 255), "M")};
    return picture;
}

QByteArray renderScreenBmp(const ScreenPicture& picture)
{
    ScreenCanvas canvas;
    drawScreen(canvas, picture);
    QByteArray out(ScreenBmpSize, '\0');
    writeHeaders(out);
    writePalette(out);
    writePixels(out, canvas.pixels());
    return out;
}
