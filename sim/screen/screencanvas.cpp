#include "screen/screencanvas.h"

#include "screen/screenfont.h"
#include "screen/screenpicture.h"

#include <algorithm>
#include <limits>

namespace {

ScreenPalette makePalette()
{
    ScreenPalette palette{};
    const QRgb own[] = {qRgb(0, 0, 0),     qRgb(192, 192, 192), qRgb(96, 96, 96),  qRgb(255, 255, 255),
                        qRgb(255, 128, 0), qRgb(0, 255, 0),     qRgb(255, 0, 0),   qRgb(128, 128, 128),
                        qRgb(255, 255, 0), qRgb(0, 255, 255),   qRgb(255, 0, 255), qRgb(0, 128, 255),
                        qRgb(128, 0, 255), qRgb(0, 0, 255),     qRgb(64, 64, 64),  qRgb(224, 224, 224)};
    int next = 0;
    for (QRgb colour : own)
        palette[next++] = colour;
    for (int r = 0; r < 6; ++r)
        for (int g = 0; g < 6; ++g)
            for (int b = 0; b < 6; ++b)
                palette[next++] = qRgb(r * 51, g * 51, b * 51);
    for (int step = 1; next < 256; ++step)
        palette[next++] = qRgb(step * 10, step * 10, step * 10);
    return palette;
}

int distance(QRgb a, QRgb b)
{
    const int dr = qRed(a) - qRed(b), dg = qGreen(a) - qGreen(b), db = qBlue(a) - qBlue(b);
    return dr * dr + dg * dg + db * db;
}

bool inside(int x, int y)
{
    return x >= 0 && x < ScreenWidth && y >= 0 && y < ScreenHeight;
}

} // namespace

const ScreenPalette& screenPalette()
{
    static const ScreenPalette palette = makePalette();
    return palette;
}

std::uint8_t paletteIndex(QRgb colour)
{
    const ScreenPalette& palette = screenPalette();
    int best = 0, bestDistance = std::numeric_limits<int>::max();
    for (int i = 0; i < 256 && bestDistance > 0; ++i) {
        const int d = distance(palette[i], colour);
        if (d < bestDistance) {
            best = i;
            bestDistance = d;
        }
    }
    return static_cast<std::uint8_t>(best);
}

ScreenCanvas::ScreenCanvas() : pixels_(ScreenWidth * ScreenHeight, '\0') {}

void ScreenCanvas::setPixel(int x, int y, std::uint8_t colour)
{
    if (inside(x, y)) pixels_[y * ScreenWidth + x] = static_cast<char>(colour);
}

void ScreenCanvas::horizontalLine(int x0, int x1, int y, std::uint8_t colour)
{
    for (int x = std::max(std::min(x0, x1), 0); x <= std::min(std::max(x0, x1), ScreenWidth - 1); ++x)
        setPixel(x, y, colour);
}

void ScreenCanvas::verticalLine(int x, int y0, int y1, std::uint8_t colour)
{
    for (int y = std::max(std::min(y0, y1), 0); y <= std::min(std::max(y0, y1), ScreenHeight - 1); ++y)
        setPixel(x, y, colour);
}

int ScreenCanvas::text(int x, int y, const QString& text, std::uint8_t colour)
{
    for (QChar c : text) {
        const GlyphRows& rows = glyphRows(c);
        for (int row = 0; row < GlyphHeight; ++row)
            for (int column = 0; column < GlyphWidth; ++column)
                if (rows[row] & (0x10 >> column)) setPixel(x + column, y + row, colour);
        x += GlyphPitch;
    }
    return x;
}

std::uint8_t ScreenCanvas::pixel(int x, int y) const
{
    return inside(x, y) ? static_cast<std::uint8_t>(pixels_[y * ScreenWidth + x]) : 0;
}

int textWidth(const QString& text)
{
    return static_cast<int>(text.size()) * GlyphPitch;
}
