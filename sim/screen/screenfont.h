#pragma once
// The instrument's small screen font: 5 x 7 pixel glyphs on a 6-pixel pitch.

#include <QChar>
#include <array>
#include <cstdint>

constexpr int kGlyphWidth = 5;
constexpr int kGlyphHeight = 7;
constexpr int kGlyphPitch = 6;

// Seven rows, top first; bit 4 is the leftmost pixel. Characters outside
// printable ASCII come out as '?'.
using GlyphRows = std::array<std::uint8_t, kGlyphHeight>;
const GlyphRows& glyphRows(QChar c);
