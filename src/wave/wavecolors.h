#pragma once
// The colours of the wave picture: the channel table, the classic sixteen-colour
// table, and what each element takes in colour mode (on black) and in black on white.

#include <QColor>

// The classic sixteen colours: 0 black, 7 grey (192, 192, 192), 15 white.
// Numbers outside 0 to 15 give black.
QColor QBColor(int number);

// CH1 to CH4 for sources 1 to 4, the math colour for 5, CH1's colour for any other
// source; black when the picture is not drawn in colour.
QColor ChannelColor(int source, bool visible);

inline constexpr int MathSource = 5;

struct WavePalette {
    QColor background;
    QColor grid;    // frame, cross, ticks and dotted grid
    QColor maker;   // maker text and time markers
    QColor xyTrace; // X-Y dots and the "X-Y Mode" legend
    QColor xyLegendCH1;
    QColor xyLegendCH2;
    QColor timeScale;      // time scale legend
    QColor altTimeBLegend; // legends of the second time base in alternate trigger
};

const WavePalette& PaletteFor(bool colorMode);
