#pragma once
// Colours of the cursor layer in colour mode (on black) and black on white.

#include <QColor>
#include <array>

struct CursorPalette {
    QColor textBack;
    QColor pen;                          // dashed lines and solid arrows
    std::array<QColor, 5> channelText{}; // |Y| texts of CH1 to CH4 (index 1 to 4)
    QColor timeText;
    QColor spectrumText;
};

const CursorPalette& CursorPaletteFor(bool colorMode);
