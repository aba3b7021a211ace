#include "wave/wavecolors.h"

#include <array>

QColor QBColor(int number)
{
    static const std::array<QColor, 16> table = {
        QColor(0, 0, 0),       QColor(0, 0, 128),   QColor(0, 128, 0),   QColor(0, 128, 128),
        QColor(128, 0, 0),     QColor(128, 0, 128), QColor(128, 128, 0), QColor(192, 192, 192),
        QColor(128, 128, 128), QColor(0, 0, 255),   QColor(0, 255, 0),   QColor(0, 255, 255),
        QColor(255, 0, 0),     QColor(255, 0, 255), QColor(255, 255, 0), QColor(255, 255, 255)};
    if (number < 0 || number >= static_cast<int>(table.size())) return table[0];
    return table[number];
}

QColor ChannelColor(int source, bool visible)
{
    if (!visible) return QBColor(0);
    switch (source) {
    case 2: return QColor(0, 255, 255);
    case 3: return QColor(255, 0, 255);
    case 4: return QColor(0, 128, 255);
    case MathSource: return QColor(128, 0, 255);
    default: return QColor(255, 255, 0);
    }
}

const WavePalette& PaletteFor(bool colorMode)
{
    static const WavePalette colour = {
        QBColor(0),          QBColor(7),          QColor(255, 128, 0),   QColor(0, 255, 0),
        QColor(255, 255, 0), QColor(0, 255, 255), QColor(255, 255, 255), QColor(0, 255, 255)};
    static const WavePalette plain = {QBColor(15), QBColor(0), QBColor(0), QBColor(0),
                                      QBColor(0),  QBColor(0), QBColor(0), QBColor(0)};
    return colorMode ? colour : plain;
}
