#pragma once
// The picture of the instrument's own screen, as :DISPLAY:DATA? returns it:
// an 8-bit 320 x 240 bitmap file image of exactly 77,878 bytes.
//
// The screen has a 300 x 200 grid (12 x 8 divisions of 25 pixels) with a
// band of text above and below it. A trace is given in screen codes: one
// code per point, 600 points across the grid (two per pixel column), code 0
// on the top grid line and 199 on the bottom one, 25 codes a division.

#include <QByteArray>
#include <QRgb>
#include <QString>
#include <QVector>
#include <array>

constexpr int ScreenWidth = 320;
constexpr int ScreenHeight = 240;
constexpr int ScreenBmpSize = 77878;
constexpr int ScreenPoints = 600;

struct ScreenTrace {
    bool on = false;
    QRgb colour = qRgb(255, 255, 0);
    // ScreenPoints codes; fewer are drawn as far as they go, more are ignored.
    QVector<int> codes;
    // Peak detect: the second code of each point (the trace then fills the
    // span between the two codes of a point). Empty for an ordinary trace.
    QVector<int> peakCodes;
    // Vertical position in 1/25 of a division: the zero line is at code
    // 100 - position. The channel mark stands there in the left margin.
    int position = 0;
    // The mark at the zero line ("1" to "4", "M"), and the legend under the grid
    // ("CH1 500mV").
    QString mark;
    QString legend;
};

struct ScreenPicture {
    // CH1 to CH4, then the math trace.
    std::array<ScreenTrace, 5> traces;
    QString runText = "RUN";  // top left: "RUN", "STOP", "T'D", "WAIT"
    QString timeText;         // under the grid, right: "M 500us"
    QString triggerText;      // top right: "CH1 0.00V"
    QString delayText;        // top middle: "D 0.000s"
    int triggerRow = -1;      // trigger level marker as a screen code; -1 none
    int triggerColumn = 150;  // horizontal trigger position, 0..299; -1 none
    bool splitScreen = false; // alternate trigger: two halves of four divisions
    bool xyMode = false;      // CH1 across, CH2 up; the codes of traces 0 and 1
};

// Fills the five traces' colours and marks with the instrument's defaults.
ScreenPicture defaultScreenPicture();

// Exactly ScreenBmpSize bytes: file header, info header, 256-colour palette,
// 320 x 240 pixel indices with the bottom row first.
QByteArray renderScreenBmp(const ScreenPicture& picture);
