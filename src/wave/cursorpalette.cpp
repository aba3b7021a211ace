#include "wave/cursorpalette.h"

#include "wave/wavecolors.h"

namespace {

CursorPalette colourPalette()
{
    CursorPalette p;
    p.textBack = QColor(0, 0, 0);
    p.pen = QColor(230, 200, 150);
    for (int channel = 1; channel <= 4; ++channel)
        p.channelText[channel] = ChannelColor(channel, true);
    p.timeText = QColor(255, 0, 255);
    p.spectrumText = ChannelColor(MathSource, true);
    return p;
}

CursorPalette blackOnWhite()
{
    CursorPalette p;
    p.textBack = QColor(255, 255, 255);
    p.pen = QBColor(0);
    p.channelText.fill(QBColor(7));
    p.timeText = p.spectrumText = QBColor(7);
    return p;
}

} // namespace

const CursorPalette& CursorPaletteFor(bool colorMode)
{
    static const CursorPalette colour = colourPalette();
    static const CursorPalette plain = blackOnWhite();
    return colorMode ? colour : plain;
}
