#include "wave/readout.h"

#include "text/valuetext.h"
#include "text/captions.h"
#include "wave/cursorpalette.h"
#include "wave/displaytexts.h"
#include "wave/readouttext.h"
#include "wave/surface.h"
#include "wave/wavecanvas.h"

#include <cmath>

namespace {

constexpr double LineStep = 20;
constexpr int VrmsMeasure = 5; // slot of "Vrms" among the measure names
const QString NoValue = QStringLiteral("????");

// Collects lines down the right side of the grid, 20 pixels apart.
class LineWriter {
  public:
    LineWriter(const ReadoutInput& input, double firstRow)
        : right_(GridMargin + GridWidth * input.geometry.Zoom), row_(GridMargin + firstRow)
    {
    }

    void add(const QString& text, const QColor& color) { place(text, color, right_ - 140); }
    // Aligned to the right by an assumed 8 pixels a character, moved by `shift`.
    void addRight(const QString& text, const QColor& color, double shift)
    {
        place(text, color, right_ - 8 * double(text.size()) + shift);
    }

    std::vector<ReadoutLine> lines;

  private:
    void place(const QString& text, const QColor& color, double x)
    {
        lines.push_back(ReadoutLine{text, color, QPointF(x, row_)});
        row_ += LineStep;
    }

    double right_;
    double row_;
};

// What one pair of vertical and one pair of horizontal cursors span, in pixels.
struct Span {
    double across; // |X2 - X1|
    double down;   // |Y1 - Y2|
};

Span spanOf(const CursorState& c, CursorId x1, CursorId x2, CursorId y1, CursorId y2)
{
    return {std::abs(c.at(x2) - c.at(x1)), std::abs(c.at(y1) - c.at(y2))};
}

double perDivisionAcross(double pixels, double scale, double zoom)
{
    return pixels * scale * 12 / 300 / zoom;
}

double perDivisionDown(double pixels, double scale, double zoom)
{
    return pixels * scale * 8 / 200 / zoom;
}

const CursorPalette& paletteOf(const ReadoutInput& input)
{
    return CursorPaletteFor(input.ColorMode);
}

// "|X1-X2|   =" and "1/|X1-X2|=", the frequency worked back from the rounded time text.
void addTimeLines(LineWriter& out, const CursorState& c, const ReadoutInput& in, double pixels,
                  const QString& scaleText)
{
    if (!c.CursorXShown || scaleText.isEmpty()) return;
    const QString time =
        ConvertTimeToStr(perDivisionAcross(pixels, ParseTimeText(scaleText), in.geometry.Zoom));
    const double back = GetTimeVlu(QString(time).replace(QLatin1Char(','), QLatin1Char('.')));
    const QString freq = back == 0 ? QStringLiteral("???.? Hz") : ConvertFreqToStr(1 / back);
    out.add(QStringLiteral("|X1-X2|   =") + time, paletteOf(in).timeText);
    out.add(QStringLiteral("1/|X1-X2|=") + freq, paletteOf(in).timeText);
}

// "|Y1-Y2|  =" of one channel; `factor` is 2 on a half-height screen.
void addVoltLine(LineWriter& out, const CursorState& c, const ReadoutInput& in, double pixels, int channel,
                 double factor)
{
    if (!c.CursorYShown || !in.ChannelTicked[channel]) return;
    const double volts =
        perDivisionDown(pixels, ParseVoltText(in.ScaleText[channel]), in.geometry.Zoom) * factor;
    out.add(QStringLiteral("|Y1-Y2|  =") + ConvertVoltToStr(volts), paletteOf(in).channelText[channel]);
}

QString spectrumFrequency(const ReadoutInput& in, double pixels)
{
    if (!(in.f32FFTHorizScale > 0)) return NoValue;
    return FreqText(GeneralFormat(perDivisionAcross(pixels, in.f32FFTHorizScale, in.geometry.Zoom)));
}

QString spectrumLevel(const ReadoutInput& in, double pixels)
{
    const double z = in.geometry.Zoom;
    if (in.s8FFTScaleType == 0) {
        if (!(in.f32FFTVrms > 0)) return NoValue;
        return VoltText3(GeneralFormat(perDivisionDown(pixels, in.f32FFTVrms, z))) + QStringLiteral("rms");
    }
    if (in.s16FFTdBVrms < 1) return NoValue;
    return DbText(GeneralFormat(perDivisionDown(pixels, in.s16FFTdBVrms, z))) + in.VrmsName;
}

void addSpectrumLines(LineWriter& out, const ReadoutInput& in, Span span)
{
    if (!in.SpectrumShown) return;
    const QColor& color = paletteOf(in).spectrumText;
    out.addRight(QStringLiteral("FFT|X1-X2|   =") + spectrumFrequency(in, span.across), color, 10);
    out.addRight(QStringLiteral("FFT|Y1-Y2|  =") + spectrumLevel(in, span.down), color, 0);
}

double lowerFirstRow(const ReadoutInput& in)
{
    return 100 * in.geometry.Zoom + 5;
}

std::vector<ReadoutLine> xyReadouts(const CursorState& c, const ReadoutInput& in)
{
    LineWriter out(in, 5);
    const Span span = spanOf(c, CursorId::X1, CursorId::X2, CursorId::Y1, CursorId::Y2);
    const double z = in.geometry.Zoom;
    const CursorPalette& palette = paletteOf(in);
    if (c.CursorXShown)
        out.add(QStringLiteral("|X1-X2|  =") +
                    ConvertVoltToStr(perDivisionAcross(span.across, ParseVoltText(in.ScaleText[1]), z)),
                palette.channelText[1]);
    if (c.CursorYShown)
        out.add(QStringLiteral("|Y1-Y2|  =") +
                    ConvertVoltToStr(perDivisionDown(span.down, ParseVoltText(in.ScaleText[2]), z)),
                palette.channelText[2]);
    return out.lines;
}

std::vector<ReadoutLine> fullScreenReadouts(const CursorState& c, const ReadoutInput& in)
{
    LineWriter out(in, 5);
    const Span span = spanOf(c, CursorId::X1, CursorId::X2, CursorId::Y1, CursorId::Y2);
    addTimeLines(out, c, in, span.across, in.TimeScaleText);
    for (int channel = 1; channel <= 4; ++channel)
        addVoltLine(out, c, in, span.down, channel, 1);
    addSpectrumLines(out, in, span);
    return out.lines;
}

// The spectrum shares the screen: traces above with half the height, spectrum below.
std::vector<ReadoutLine> spectrumSplitReadouts(const CursorState& c, const ReadoutInput& in)
{
    LineWriter upper(in, 5);
    const Span top = spanOf(c, CursorId::X1, CursorId::X2, CursorId::Y1, CursorId::Y2);
    addTimeLines(upper, c, in, top.across, in.TimeScaleText);
    addVoltLine(upper, c, in, top.down, 1, 2);
    addVoltLine(upper, c, in, top.down, 2, 2);
    LineWriter lower(in, lowerFirstRow(in));
    addSpectrumLines(lower, in, spanOf(c, CursorId::X3, CursorId::X4, CursorId::Y3, CursorId::Y4));
    upper.lines.insert(upper.lines.end(), lower.lines.begin(), lower.lines.end());
    return upper.lines;
}

// Alternate trigger: the upper half runs on time base A with CH1, the lower on B with CH2.
std::vector<ReadoutLine> alternationReadouts(const CursorState& c, const ReadoutInput& in)
{
    LineWriter upper(in, 5);
    const Span top = spanOf(c, CursorId::X1, CursorId::X2, CursorId::Y1, CursorId::Y2);
    addTimeLines(upper, c, in, top.across, in.TimeScaleAText);
    addVoltLine(upper, c, in, top.down, 1, 2);
    LineWriter lower(in, lowerFirstRow(in));
    const Span bottom = spanOf(c, CursorId::X3, CursorId::X4, CursorId::Y3, CursorId::Y4);
    addTimeLines(lower, c, in, bottom.across, in.TimeScaleBText);
    addVoltLine(lower, c, in, bottom.down, 2, 2);
    upper.lines.insert(upper.lines.end(), lower.lines.begin(), lower.lines.end());
    return upper.lines;
}

} // namespace

ReadoutInput ReadoutInputOf(const WaveRecord& record, double zoom, int language)
{
    ReadoutInput in;
    in.geometry = CursorGeometry{zoom, record.SplitScreen};
    in.ColorMode = record.ColorMode;
    in.Alternation = IsAlternation(record.TriggerMode);
    in.XYMode = record.XYMode;
    in.TimeScaleText = record.TimeScaleText;
    in.TimeScaleAText = record.TimeScaleAText;
    in.TimeScaleBText = record.TimeScaleBText;
    in.ScaleText = record.ScaleText;
    for (int channel = 1; channel <= 4; ++channel)
        in.ChannelTicked[channel] = record.showChannel(channel);
    in.SpectrumShown = IsDisplayOn(record.FFTDisplayText) && record.ShowMath;
    in.f32FFTHorizScale = record.Parameter.f32FFTHorizScale;
    in.f32FFTVrms = record.Parameter.f32FFTVrms;
    in.s8FFTScaleType = record.Parameter.s8FFTScaleType;
    in.s16FFTdBVrms = record.Parameter.s16FFTdBVrms;
    in.VrmsName = Caption(CaptionList::MeasureNames, VrmsMeasure, language);
    return in;
}

std::vector<ReadoutLine> DisplayCursorM(const CursorState& cursors, const ReadoutInput& input)
{
    if (!input.geometry.SplitScreen)
        return input.XYMode ? xyReadouts(cursors, input) : fullScreenReadouts(cursors, input);
    return input.Alternation ? alternationReadouts(cursors, input) : spectrumSplitReadouts(cursors, input);
}

void DrawReadouts(Surface& surface, const std::vector<ReadoutLine>& lines)
{
    for (const ReadoutLine& line : lines) {
        surface.setForeColor(line.color);
        surface.text(line.at, line.text, false);
    }
}
