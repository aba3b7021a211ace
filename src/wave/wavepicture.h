#pragma once
// The one way a wave record becomes a picture: the grid, then the traces with
// their markers and legends. The wave window, the command line and the
// benchmarks all draw through it, so they cannot drift apart.

#include "acquire/waverecord.h"
#include "wave/surface.h"

#include <QSize>

// The picture of a record at zoom 1 is 350 by 250 pixels; zoom scales both.
QSize WavePictureSize(double zoom);

// Draws record onto surface at zoom. The spectrum's placement follows the
// connected instrument's family (ModelIsSupported).
void DrawWavePicture(Surface& surface, const WaveRecord& record, double zoom);
