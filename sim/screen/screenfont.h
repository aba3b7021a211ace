#pragma once
// The instrument's small screen font: 5 x 7 pixel glyphs on a 6-pixel pitch.

#include <QChar>
#include <array>
#include <cstdint>

constexpr int GlyphWidth = 5;
constexpr int GlyphHeight = 7;
constexpr int GlyphPitch = 6;

// Seven rows, top first; bit 4 is the leftmost pixel. Characters outside
// printable ASCII come out as '?'.
using GlyphRows = std::array<std::uint8_t, GlyphHeight>;
const GlyphRows& glyphRows(QChar c);
