#pragma once
// The readouts of the cursors: time and frequency between the vertical cursors,
// volts between the horizontal ones, and with the spectrum on, frequency and level.
// They are worked from a small summary of the picture's record, so the wave view
// (WaveRecord) and the memory view (its own slot) both fill one.

#include "acquire/waverecord.h"
#include "wave/cursorstate.h"

#include <QColor>
#include <QPointF>
#include <QString>
#include <array>
#include <vector>

class Surface;

// What the readouts need of a picture and its record.
struct ReadoutInput {
    CursorGeometry geometry;
    bool ColorMode = true;    // colour picture on black
    bool Alternation = false; // trigger mode "ALTERNATION": the halves have time bases A and B
    bool XYMode = false;
    QString TimeScaleText; // Y-T and Roll; an empty text gives no time lines
    QString TimeScaleAText, TimeScaleBText;
    ChannelTexts ScaleText;              // volts per division of CH1 to CH4 (index 1 to 4)
    std::array<bool, 5> ChannelTicked{}; // ChkCH of CH1 to CH4 (index 1 to 4)
    bool SpectrumShown = false;          // FFT display "ON" and math displayed
    float f32FFTHorizScale = 0;
    float f32FFTVrms = 0;
    int8_t s8FFTScaleType = 0; // 0 Vrms, else dB
    int16_t s16FFTdBVrms = 0;
    QString VrmsName; // the Vrms measure's name in the language in force
};

// The summary of a wave window's record at a zoom; the ticked channels are the
// record's wanted flags, which follow ChkCH. VrmsName is taken in `language`.
ReadoutInput ReadoutInputOf(const WaveRecord& record, double zoom, int language);

// One printed readout: its text, colour and top-left pixel on the picture.
struct ReadoutLine {
    QString text;
    QColor color;
    QPointF at;
    bool operator==(const ReadoutLine&) const = default;
};

// The readout lines for the cursors as they stand, in printing order, down the
// right of the grid from row 30, 20 pixels apart. Full screen: time and
// frequency from X1, X2, volts of each ticked channel from Y1, Y2 (X-Y: volts on
// both axes from CH1 and CH2), then the spectrum's lines when it is shown. Split
// by the spectrum: the upper pair with doubled volts of CH1 and CH2, the spectrum
// from X3, X4, Y3, Y4 below the middle row. Split by alternate trigger: time base
// A with CH1 above, time base B with CH2 below, volts doubled.
std::vector<ReadoutLine> DisplayCursorM(const CursorState& cursors, const ReadoutInput& input);

// Prints readout lines on a surface, transparent.
void DrawReadouts(Surface& surface, const std::vector<ReadoutLine>& lines);
