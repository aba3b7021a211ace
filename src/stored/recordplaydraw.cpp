#include "stored/recordplaydraw.h"

#include "acquire/waverecord.h"
#include "stored/rcdfile.h"
#include "stored/recordslot.h"
#include "wave/drawgrid.h"
#include "wave/drawmarker.h"
#include "wave/drawtimemarker.h"
#include "wave/qimagesurface.h"
#include "wave/wavecolors.h"

#include <cmath>

namespace {

// The grid routine reads its look from a wave record: always the full dotted
// grid, in colour on black or black on white.
const WaveRecord& gridLook(bool white)
{
    static const WaveRecord colour = [] {
        WaveRecord look;
        look.ColorMode = true;
        look.GridOn = true;
        return look;
    }();
    static const WaveRecord plain = [] {
        WaveRecord look;
        look.ColorMode = false;
        look.GridOn = true;
        return look;
    }();
    return white ? plain : colour;
}

QColor traceColor(const RecordSlot& slot)
{
    return ChannelColor(RecordSourceChannel(slot), !slot.WhiteBackground);
}

void drawTimeTexts(const WaveCanvas& canvas, const RecordSlot& slot)
{
    const double z = canvas.Zoom;
    Surface& s = canvas.surface;
    s.setForeColor(PaletteFor(!slot.WhiteBackground).maker);
    DrawTriggerMark(canvas, slot.TimeText, slot.DelayText);
    s.text(QPointF(GridMargin + 100 * z, 10), QStringLiteral("TimeDiv: ") + slot.TimeText, false);
    s.text(QPointF(GridMargin + 200 * z, 10), QStringLiteral("Delay: ") + slot.DelayText, false);
}

void drawChannelTexts(const WaveCanvas& canvas, const RecordSlot& slot)
{
    const double z = canvas.Zoom;
    Surface& s = canvas.surface;
    s.setForeColor(traceColor(slot));
    DrawChannelMark(canvas, RecordSourceChannel(slot), slot.OffsetText, slot.VoltText);
    const double row = GridMargin + 203 * z;
    s.text(QPointF(GridMargin, row), slot.SourceName + QStringLiteral(" Volt/Div: ") + slot.VoltText, false);
    s.text(QPointF(GridMargin + 150 * z, row), QStringLiteral("Offset: ") + slot.OffsetText, false);
}

// 600 samples across the grid's width, sample rows on its height from the top line.
void drawTrace(const WaveCanvas& canvas, const std::vector<int16_t>& samples, int frame)
{
    const double z = canvas.Zoom;
    const double xStep = GridWidth * z / RecordFrameSize;
    const double yScale = GridHeight * z / 200;
    auto at = [&](int n) {
        return QPointF(GridMargin + n * xStep, RecordSample(samples, frame, n) * yScale + 25);
    };
    Surface& s = canvas.surface;
    s.line(at(0), at(1));
    for (int n = 2; n < RecordFrameSize; ++n)
        s.lineTo(at(n));
}

} // namespace

int RecordSample(const std::vector<int16_t>& samples, int frame, int n)
{
    const long long index = (static_cast<long long>(frame) - 1) * RecordFrameSize + n;
    if (index < 0 || index >= static_cast<long long>(samples.size())) return 0;
    return samples[size_t(index)];
}

int RecordSourceChannel(const RecordSlot& slot)
{
    const int n = slot.SourceName.mid(2).toInt();
    return n >= 1 && n <= 4 ? n : 1;
}

void DrawRecordBackground(const WaveCanvas& canvas, const RecordSlot& slot)
{
    DrawScrGrid(canvas, gridLook(slot.WhiteBackground));
    drawTimeTexts(canvas, slot);
    drawChannelTexts(canvas, slot);
}

void DrawRecordTraces(const WaveCanvas& canvas, const RecordSlot& slot)
{
    Surface& s = canvas.surface;
    s.setLineWidth(1);
    s.setForeColor(traceColor(slot));
    drawTrace(canvas, slot.Samples, slot.CurrentFrame);
    if (slot.HasSecond) drawTrace(canvas, slot.SecondSamples, slot.CurrentFrame);
}

void DrawRecordFrame(const WaveCanvas& canvas, const RecordSlot& slot)
{
    if (!slot.HasFile) {
        DrawScrGrid(canvas, gridLook(slot.WhiteBackground));
        return;
    }
    DrawRecordBackground(canvas, slot);
    DrawRecordTraces(canvas, slot);
}

QSize RecordPictureSize(double zoom)
{
    return {int(std::lround((GridWidth + 2 * GridMargin) * zoom)),
            int(std::lround((GridHeight + 2 * GridMargin) * zoom))};
}

QImage RecordFrameImage(const RecordSlot& slot, double zoom)
{
    QImageSurface surface(RecordPictureSize(zoom));
    const WaveCanvas canvas(surface, zoom);
    DrawRecordFrame(canvas, slot);
    return surface.image();
}
