#include "wave/wavepicture.h"

#include "link/devicefacts.h"
#include "wave/drawgrid.h"
#include "wave/drawosc.h"
#include "wave/wavecanvas.h"

#include <cmath>

QSize WavePictureSize(double zoom)
{
    return {int(std::lround(350 * zoom)), int(std::lround(250 * zoom))};
}

void DrawWavePicture(Surface& surface, const WaveRecord& record, double zoom)
{
    const WaveCanvas canvas(surface, zoom, ModelIsSupported != 0);
    DrawScrGrid(canvas, record);
    DrawOSC(canvas, record);
}
