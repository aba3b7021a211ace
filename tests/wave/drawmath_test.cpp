#include "drawtesting.h"
#include "wave/drawmath.h"

namespace {

// The "m" marker at m = 100 - offset (s16FFTVertOffset with FFT on), halved on
// a split screen and lifted 100z into the lower half: Y = 25 + m z - 5 + lift;
// and the scale texts under the grid by operation.
TEST(DrawMathLegend, Pictures)
{
    const auto legend = [](const char* fft, const char* mode, int8_t fftScreen, int8_t fftSource,
                           int16_t offset, int8_t operate = 0, int8_t scaleType = 0) {
        return [=](RecordingSurface& s) {
            WaveParameter p;
            p.s8FFTScreen = fftScreen;
            p.s8FFTSource = fftSource;
            p.s16MathOffset = p.s16FFTVertOffset = offset;
            p.s8MathOperate = operate;
            p.s8FFTScaleType = scaleType;
            p.f32MathScale = 0.5f;
            p.f32FFTVrms = 2.0f;
            p.s16FFTdBVrms = 20;
            p.f32FFTHorizScale = 1000.0f;
            DrawMathLegend(WaveCanvas(s, 1), p, QString::fromLatin1(mode), QString::fromLatin1(fft));
        };
    };
    ExpectDrawings("mathlegend", {{"math-full", legend("OFF", "EDGE", 0, 0, 0)},
                                  {"math-alt-lower", legend("OFF", "ALTERNATION", 0, 0, 0)},
                                  {"fft-own-screen", legend("ON", "EDGE", 1, 0, 40)},
                                  {"fft-shared-screen", legend("ON", "EDGE", 0, 0, 40)},
                                  {"fft-alt-source-a", legend("ON", "ALTERNATION", 0, 0, 0)},
                                  {"fft-alt-source-b", legend("ON", "ALTERNATION", 0, 1, 0)},
                                  {"top-row", legend("OFF", "EDGE", 0, 0, 100)},
                                  {"odd-row-halved", legend("OFF", "ALTERNATION", 0, 0, -1)},
                                  {"product", legend("OFF", "EDGE", 0, 0, 0, 2)},
                                  {"fft-vrms", legend("OFF", "EDGE", 0, 0, 0, 3, 0)},
                                  {"fft-db", legend("OFF", "EDGE", 0, 0, 0, 3, 1)}});
}

TEST(DrawMathLegend, OutsideTheGridDrawsNothingAtAll)
{
    for (int16_t offset : {int16_t(-100), int16_t(101), int16_t(-32768)}) {
        WaveParameter p;
        p.s16MathOffset = offset;
        RecordingSurface s;
        DrawMathLegend(WaveCanvas(s, 1), p, QStringLiteral("EDGE"), QStringLiteral("OFF"));
        EXPECT_TRUE(s.calls().empty()) << offset;
    }
}

TEST(DrawMathTrace, ArrayWithoutMargin)
{
    // Index 2 start + 2: start 3 gives the first line from index 7 to 8 at x 28.
    WaveParameter p;
    p.s16ScrStartPos = 3;
    p.s16ScrEndPos = 299;
    RecordingSurface s;
    DrawMathTrace(WaveCanvas(s, 1), Ramp(1025), 600, p, QStringLiteral("EDGE"));
    ASSERT_FALSE(s.calls().empty());
    EXPECT_EQ(PathOf({s.calls()[0]}), (Path{{28, 32}, {28, 33}}));
    EXPECT_EQ(s.calls()[1].to, QPointF(29, 34));
}

TEST(DrawMathTrace, AlternateTriggerUsesSourceBInTheLowerHalf)
{
    WaveParameter p;
    p.s16ScrStartPos = 3;
    p.s16ScrStartPosB = 10;
    p.s16ScrEndPosB = 12;
    RecordingSurface s;
    DrawMathTrace(WaveCanvas(s, 1), Ramp(1025), 600, p, QStringLiteral("ALTERNATION"));
    ASSERT_EQ(s.calls().size(), 1u + 3u); // x 36, 36.5, 37
    EXPECT_EQ(PathOf({s.calls()[0]}), (Path{{35, 125 + 10.5}, {35, 125 + 11}}));
    EXPECT_EQ(s.calls().back().to, QPointF(37, 125 + 12.5));
}

// The "fftwidth" rows of data/traces.txt: offset 0 puts x0 at 175 (left 150),
// index 2; steps of 0.5 run from 176 to right + 24, the right end being
// min(150 + width / 2 rounded, 299).
TEST(DrawFftTrace, WidthSetsTheRightEnd)
{
    for (const QStringList& f : TraceRows("fftwidth", 4)) {
        const int right = f[3].toInt();
        EXPECT_EQ(FftWidth(int16_t(f[1].toInt())), f[2].toInt());
        WaveParameter p;
        p.s16FFTHorizScale = int16_t(f[1].toInt());
        p.s8FFTScreen = 1;
        RecordingSurface s;
        DrawFftTrace(WaveCanvas(s, 1), Ramp(2049), 600, p, QStringLiteral("EDGE"));
        const std::vector<SurfaceCall>& calls = s.calls();
        ASSERT_EQ(calls.size(), 1u + 2u * (right - 151) + 1u);
        EXPECT_EQ(PathOf({calls[0]}), (Path{{175, 26}, {175, 27}}));
        EXPECT_EQ(calls.back().to.x(), right + 25);
    }
}

TEST(DrawFftTrace, OffsetShiftsAndEndsTheSpectrum)
{
    WaveParameter p;
    p.s16FFTHorizScale = 7; // width 25: (25 + 300) / 2 = 162.5
    p.s8FFTScreen = 1;
    p.s16FFTHorizOffset = 163;
    RecordingSurface s;
    DrawFftTrace(WaveCanvas(s, 1), Ramp(2049), 600, p, QStringLiteral("EDGE"));
    EXPECT_TRUE(s.calls().empty());
    // 162: left 0, right 0.5 rounded to 0, index 2 * 162 - 298 = 26: the first line alone.
    p.s16FFTHorizOffset = 162;
    DrawFftTrace(WaveCanvas(s, 1), Ramp(2049), 600, p, QStringLiteral("EDGE"));
    ASSERT_EQ(s.calls().size(), 1u);
    EXPECT_EQ(PathOf(s.calls()), (Path{{25, 50}, {25, 51}}));
}

// The "fftrow" rows of data/traces.txt: on a shared screen y = y0 + min(s + c,
// 100) z, with c 12.5 without the model's B flag.
TEST(DrawFftTrace, SpectrumKeepsToItsHalf)
{
    for (const QStringList& f : TraceRows("fftrow", 7)) {
        SCOPED_TRACE(f[1].toStdString());
        WaveParameter p;
        p.s8FFTScreen = 0;
        p.s8FFTSource = int8_t(f[3].toInt());
        RecordingSurface s;
        DrawFftTrace(WaveCanvas(s, 1, f[4] == u'1'), WaveArray(2049, f[5].toInt()), 600, p, f[2]);
        ASSERT_FALSE(s.calls().empty());
        EXPECT_EQ(s.calls()[0].to.y(), f[6].toDouble());
    }
}

} // namespace
