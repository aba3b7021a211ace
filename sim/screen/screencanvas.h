#pragma once
// A 320 x 240 picture of 8-bit palette indices, and the fixed palette of the
// instrument's screen. Every drawing call clips to the picture.

#include <QByteArray>
#include <QRgb>
#include <QString>
#include <array>
#include <cstdint>

using ScreenPalette = std::array<QRgb, 256>;

// Entries 0 to 15 are the screen's own colours; the rest is a 6 x 6 x 6
// colour cube and a ramp of greys, so any colour has a near neighbour.
const ScreenPalette& screenPalette();
std::uint8_t paletteIndex(QRgb colour);

namespace ScreenColour {
constexpr std::uint8_t Black = 0;
constexpr std::uint8_t Frame = 1; // grey (192, 192, 192)
constexpr std::uint8_t Dots = 2;  // dim grey of the dotted grid
constexpr std::uint8_t White = 3;
constexpr std::uint8_t Orange = 4; // maker text and trigger marks
constexpr std::uint8_t Green = 5;  // run state, X-Y trace
} // namespace ScreenColour

class ScreenCanvas {
  public:
    ScreenCanvas();

    void setPixel(int x, int y, std::uint8_t colour);
    // Both ends included, in either order.
    void horizontalLine(int x0, int x1, int y, std::uint8_t colour);
    void verticalLine(int x, int y0, int y1, std::uint8_t colour);
    // (x, y) is the top left of the first glyph. Returns the x after the text.
    int text(int x, int y, const QString& text, std::uint8_t colour);

    std::uint8_t pixel(int x, int y) const;
    // Rows top first, 320 bytes each.
    const QByteArray& pixels() const { return pixels_; }

  private:
    QByteArray pixels_;
};

// The width a text takes on the screen.
int textWidth(const QString& text);
