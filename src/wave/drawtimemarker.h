#pragma once
// The trigger's T marker above the grid and the time legends. Everything draws from a record's
// values onto a WaveCanvas and needs no window.

#include "acquire/waverecord.h"
#include "wave/wavecanvas.h"

// The T marker of one time base alone, on the upper (or only) or the lower half, in the maker colour.
void DrawTriggerMarker(const WaveCanvas& canvas, const QString& timeScaleText, const QString& timeOffsetText,
                       bool lowerHalf, bool colorMode);
// The T marker alone, in the fore colour in force, on the upper (or only) or the
// lower half; a zero scale draws none.
void DrawTriggerMark(const WaveCanvas& canvas, const QString& timeScaleText, const QString& timeOffsetText,
                     bool lowerHalf = false);
// The T marker and time legends of a single time base, and of the two of alternate trigger.
void DrawTimeMarker(const WaveCanvas& canvas, const QString& timeScaleText, const QString& timeOffsetText,
                    bool colorMode);
void DrawAltTimeMarkers(const WaveCanvas& canvas, const QString& scaleAText, const QString& scaleBText,
                        const QString& offsetAText, const QString& offsetBText, bool colorMode);
