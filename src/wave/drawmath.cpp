// The math trace, the spectrum, and their marker and legends.

#include "wave/drawmath.h"

#include "text/formatmask.h"
#include "text/valuetext.h"
#include "wave/alternation.h"
#include "wave/tracerun.h"

#include <algorithm>

namespace {

constexpr int8_t MathOperateFft = 3;
constexpr int8_t MathOperateSquare = 2; // its scale carries a unit squared

// The marker's halving and the lift that moves it to the lower half.
struct MathMarkerPlace {
    double div = 1;
    bool lowered = false;
};

MathMarkerPlace mathMarkerPlace(const WaveParameter& p, bool alt, bool fftOn)
{
    if (!fftOn) return {alt ? 2.0 : 1.0, alt};
    if (!alt) return {p.s8FFTScreen != 0 ? 1.0 : 2.0, p.s8FFTScreen == 0};
    return {2, p.s8FFTSource != 0};
}

void drawMathLegendTexts(Surface& s, const WaveParameter& p, double z)
{
    if (p.s8MathOperate == MathOperateFft) {
        const QString vertical =
            p.s8FFTScaleType != 0
                ? DbText(QString::number(p.s16FFTdBVrms)) + QStringLiteral("Vrms/div ")
                : VoltText3(GeneralFormatSingle(p.f32FFTVrms)) + QStringLiteral("rms/div  ");
        s.text(QPointF(GridMargin, GridMargin + 214 * z), QStringLiteral("FFT ") + vertical, false);
        s.text(QPointF(GridMargin + 150 * z, GridMargin + 224 * z),
               FreqText(GeneralFormatSingle(p.f32FFTHorizScale)) + QStringLiteral("/div"), false);
        return;
    }
    QString text = QStringLiteral("Math scale ") + VoltText3(GeneralFormatSingle(p.f32MathScale));
    if (p.s8MathOperate == MathOperateSquare) text += QLatin1Char('2');
    s.text(QPointF(GridMargin, GridMargin + 224 * z), text, false);
}

// Where the spectrum starts and ends on the grid, and its first array index.
struct FftSpan {
    int left = 0;
    int right = 0;
    long long index = 0;
};

std::optional<FftSpan> fftSpan(const WaveParameter& p)
{
    const int w = FftWidth(p.s16FFTHorizScale);
    const int o = p.s16FFTHorizOffset;
    if ((w + 300) / 2.0 <= o) return std::nullopt;
    const std::optional<int> right = RoundToInt16(150 - o + w / 2.0);
    if (!right) return std::nullopt;
    return FftSpan{std::max(150 - o, 0), std::min(*right, 299), std::max(2LL * o - 298, 2LL)};
}

} // namespace

int FftWidth(int s16FFTHorizScale)
{
    switch (s16FFTHorizScale) {
    case 1: return 5000;
    case 2: return 2500;
    case 3: return 1000;
    case 5: return 250;
    case 6: return 100;
    case 7: return 25;
    default: return 500;
    }
}

void DrawMathLegend(const WaveCanvas& canvas, const WaveParameter& parameter, const QString& triggerMode,
                    const QString& fftDisplayText)
{
    const bool fftOn = IsDisplayOn(fftDisplayText);
    const double m = 100 - (fftOn ? parameter.s16FFTVertOffset : parameter.s16MathOffset);
    if (!(m >= 0 && m < 200)) return;
    const double z = canvas.Zoom;
    const MathMarkerPlace place = mathMarkerPlace(parameter, IsAlternation(triggerMode), fftOn);
    const double lift = place.lowered ? RoundToInt16(100 * z).value_or(0) : 0;
    const double Y = GridMargin + (m / place.div) * z - 5 + lift;
    Surface& s = canvas.surface;
    DrawOutline(s, {{6, Y}, {19, Y}, {23, Y + 5}, {19, Y + 10}, {6, Y + 10}});
    s.text(QPointF(9, Y - 3), QStringLiteral("m"), true);
    drawMathLegendTexts(s, parameter, z);
}

void DrawMathTrace(const WaveCanvas& canvas, const WaveArray& math, int points,
                   const WaveParameter& parameter, const QString& triggerMode)
{
    // The math array has no margin: its first line joins indices 2 start + 1 and 2 start + 2.
    const bool alt = IsAlternation(triggerMode);
    const int start = alt ? parameter.s16ScrStartPosB : parameter.s16ScrStartPos;
    const int end = alt ? parameter.s16ScrEndPosB : parameter.s16ScrEndPos;
    const std::optional<double> x0 = TraceX0(start, canvas.Zoom);
    if (!x0) return;
    const RowMap rows = alt ? HalfScreenRows(canvas.Zoom, true) : FullScreenRows(canvas.Zoom);
    DrawTraceRun(canvas, math, points, TraceRun{*x0, 2LL * start + 2, end, rows, alt});
}

void DrawFftTrace(const WaveCanvas& canvas, const WaveArray& fft, int points, const WaveParameter& parameter,
                  const QString& triggerMode)
{
    const std::optional<FftSpan> span = fftSpan(parameter);
    if (!span) return;
    const double z = canvas.Zoom;
    const std::optional<double> x0 = TraceX0(span->left, z);
    if (!x0) return;
    RowMap rows = FullScreenRows(z);
    if (parameter.s8FFTScreen == 0) {
        // On a shared screen the spectrum keeps to its half: no row below 100.
        const bool upper = IsAlternation(triggerMode) && parameter.s8FFTSource == 0;
        rows = RowMap{upper ? GridMargin : GridMargin + 100 * z, z, canvas.modelHasBFlag ? 0.0 : 12.5, 100};
    }
    DrawTraceRun(canvas, fft, points, TraceRun{*x0, span->index, span->right, rows, false});
}
