#pragma once
// The picture a drawing routine works on, and the screen arithmetic they share:
// a grid of 300 by 200 pixels at zoom 1 behind a fixed margin of 25, 25 pixels a
// division, 600 samples across.

#include "wave/surface.h"

#include <QPointF>
#include <initializer_list>
#include <limits>
#include <optional>
#include <type_traits>

inline constexpr double GridMargin = 25; // left and top; not scaled by the zoom
inline constexpr double GridWidth = 300;
inline constexpr double GridHeight = 200;
inline constexpr double MinZoom = 0.01;
// Beyond this the picture would not fit in memory anyway; the bound keeps the
// tick loop, which grows with the zoom, short for any zoom a caller passes.
inline constexpr double MaxZoom = 100;

struct WaveCanvas {
    // zoom is clamped to MinZoom..MaxZoom (a zoom that is no number gives MinZoom).
    WaveCanvas(Surface& surface, double zoom, bool modelHasBFlag = true);

    Surface& surface;
    double Zoom;
    // The instrument is of the family with the B flag (ModelIsSupported): its
    // spectrum needs no lift on a split screen.
    bool modelHasBFlag;
    // In alternate trigger: the instrument's source pair is in order (CH1CH2 or
    // CH3CH4). DrawOSC asks it once per picture; markers and traces read it here.
    bool PairOrdered = false;
};

// The classic conversion of a value to a whole number: to nearest, ties to even.
// Empty when the result does not fit a 16-bit (or 32-bit) integer or is no number.
std::optional<int> RoundToInt16(double value);
std::optional<int> RoundToInt32(double value);

// The classic counted loop over doubles: from `from` while the counter is at most
// `to`, adding `step` after each pass, so the steps add up their rounding as the
// pictures always have. A step that is not positive runs no pass. A body that
// returns bool ends the loop by returning false.
template <typename Body> void ForSteps(double from, double to, double step, Body&& body)
{
    if (!(step > 0) || step == std::numeric_limits<double>::infinity()) return;
    for (double v = from; v <= to; v += step) {
        if constexpr (std::is_same_v<decltype(body(v)), bool>) {
            if (!body(v)) return;
        } else {
            body(v);
        }
    }
}

// Row of a sample value: y0 + min(s + lift, cap) * factor. A full screen is y0 25
// and factor z; a half screen has factor z / 2 and y0 25 or 25 + 100z.
struct RowMap {
    double y0 = GridMargin;
    double factor = 1;
    double lift = 0;
    double cap = std::numeric_limits<double>::infinity();

    double operator()(int sample) const;
};

RowMap FullScreenRows(double zoom);
RowMap HalfScreenRows(double zoom, bool lower);

// A closed outline: a line from the first point to the second, on through the
// others and back to the first.
void DrawOutline(Surface& surface, std::initializer_list<QPointF> points);
