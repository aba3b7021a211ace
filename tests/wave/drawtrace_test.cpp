#include "drawtesting.h"
#include "wave/drawtrace.h"

namespace {

WaveParameter positions(int start, int end)
{
    WaveParameter p;
    p.s16ScrStartPos = static_cast<int16_t>(start);
    p.s16ScrEndPos = static_cast<int16_t>(end);
    return p;
}

std::vector<SurfaceCall> drawChannel(const WaveArray& wave, double zoom, const WaveParameter& p,
                                     int points = 600, const char* fft = "OFF", const char* mode = "EDGE",
                                     int channel = 1, const char* pair = "")
{
    RecordingSurface s;
    DrawChannelTrace(PairCanvas(s, zoom, pair), wave, points, channel, p, QString::fromLatin1(mode),
                     QString::fromLatin1(fft));
    return s.calls();
}

// Full screen at zoom 1: x0 25, first line from sample index 213 to 214; then
// steps of 0.5 from x = 26 to 324, px = x - 0.1 rounded, index 215 onward.
TEST(DrawChannelTrace, FullScreenFirstSegmentsAndLastPoint)
{
    const WaveArray wave = Ramp(2049);
    const std::vector<SurfaceCall> calls = drawChannel(wave, 1, positions(0, 299));
    ASSERT_EQ(calls.size(), 1u + 597u);
    EXPECT_EQ(calls[0].kind, SurfaceCall::Line);
    EXPECT_EQ(PathOf({calls[0]}), (Path{{25, 25 + 13}, {25, 25 + 14}})); // rows 213 % 200, 214 % 200
    const Path firstSteps{{26, 25 + 15}, {26, 25 + 16}, {27, 25 + 17}, {27, 25 + 18}, {28, 25 + 19}};
    for (std::size_t k = 0; k < firstSteps.size(); ++k) {
        EXPECT_EQ(calls[1 + k].kind, SurfaceCall::LineTo);
        EXPECT_EQ(calls[1 + k].to, firstSteps[k]) << "step " << k;
    }
    EXPECT_EQ(calls.back().to, QPointF(324, 25 + 811 % 200));
}

TEST(DrawChannelTrace, StartPositionAndZoomTwo)
{
    // x0 = 25 + 10 * 2; index 2 * 10 + 214; step 1 from 47 to 21 * 2 + 24 = 66.
    const WaveArray wave = Ramp(2049);
    const std::vector<SurfaceCall> calls = drawChannel(wave, 2, positions(10, 20));
    ASSERT_EQ(calls.size(), 1u + 20u);
    EXPECT_EQ(PathOf({calls[0]}), (Path{{45, 25 + 2 * 33}, {45, 25 + 2 * 34}}));
    EXPECT_EQ(calls[1].to, QPointF(47, 25 + 2 * 35));
    EXPECT_EQ(calls.back().to, QPointF(66, 25 + 2 * 54));
}

TEST(DrawChannelTrace, StepsRoundInSinglePrecision)
{
    // Zoom 1.2: steps of 0.6 from 26.2. The fifth x adds up to 28.600000000000005;
    // less 0.1 it is 28.5 in single precision and rounds to the even 28 (29 in double).
    const std::vector<SurfaceCall> calls = drawChannel(Ramp(2049), 1.2, positions(0, 299));
    ASSERT_GT(calls.size(), 7u);
    const std::vector<double> xs{calls[1].to.x(), calls[2].to.x(), calls[3].to.x(),
                                 calls[4].to.x(), calls[5].to.x(), calls[6].to.x()};
    EXPECT_EQ(xs, (std::vector<double>{26, 27, 27, 28, 28, 29}));
}

TEST(DrawChannelTrace, StartRoundsHalfToEven)
{
    // 5 * 0.5 = 2.5 rounds to 2.
    const std::vector<SurfaceCall> calls = drawChannel(Ramp(2049), 0.5, positions(5, 299));
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls[0].from.x(), 27);
}

// The "half" rows of data/traces.txt: rows are y0 + s / 2 on a split screen. In
// alternate trigger the channel takes the positions of its source: A (start 4)
// upper, B (start 8) lower.
TEST(DrawChannelTrace, HalfAndPositions)
{
    for (const QStringList& f : TraceRows("half", 9)) {
        SCOPED_TRACE(f[1].toStdString());
        WaveParameter p = positions(0, 299);
        p.s8FFTScreen = int8_t(f[4].toInt());
        p.s16ScrStartPosA = 4;
        p.s16ScrEndPosA = 299;
        p.s16ScrStartPosB = 8;
        p.s16ScrEndPosB = 299;
        const QByteArray mode = f[2].toLatin1(), fft = f[3].toLatin1(),
                         pair = f[5] == u'-' ? "" : f[5].toLatin1();
        const std::vector<SurfaceCall> calls = drawChannel(Ramp(2049), 1, p, 600, fft.constData(),
                                                           mode.constData(), f[6].toInt(), pair.constData());
        ASSERT_FALSE(calls.empty());
        const double y0 = f[7].toDouble();
        const int index = f[8].toInt(), start = (index - 214) / 2;
        EXPECT_EQ(PathOf({calls[0]}), (Path{{25.0 + start, y0 + (index - 1) % 200 / 2.0},
                                            {25.0 + start, y0 + index % 200 / 2.0}}));
    }
}

TEST(DrawChannelTrace, FullScreenWhenSpectrumHasItsOwnScreen)
{
    WaveParameter p = positions(0, 299);
    p.s8FFTScreen = 1;
    const std::vector<SurfaceCall> calls = drawChannel(Ramp(2049), 1, p, 600, "ON");
    EXPECT_EQ(calls[0].to, QPointF(25, 25 + 14));
}

// The "end" rows of data/traces.txt: the trace ends where the array or the steps end.
TEST(DrawChannelTrace, EndsWhereTheArrayOrTheStepsEnd)
{
    for (const QStringList& f : TraceRows("end", 5))
        EXPECT_EQ(drawChannel(Ramp(f[2].toUInt()), 1, positions(0, 299), f[3].toInt()).size(), f[4].toUInt())
            << f[1].toStdString();
}

TEST(DrawChannelTrace, StartBeyondSixteenBitsDrawsNothing)
{
    EXPECT_TRUE(drawChannel(Ramp(2049), 100, positions(400, 500)).empty());
}

// Peak halves A = 10 + index % 7 and B = 150 + index % 5 from index 213, positions
// 0 to 2 at zoom 1 (steps at x 26, 26.5, 27): the first lines of each half and
// the vertical between them, then per step A, B and the vertical at the last
// x, and a closing vertical. Halved rows at zoom 2 with arrays that end at the
// start index: no step and no closing vertical.
TEST(DrawPeakTrace, Pictures)
{
    WaveArray a(2049), b(2049);
    for (int i = 0; i < 2049; ++i) {
        a[i] = 10 + i % 7;
        b[i] = 150 + i % 5;
    }
    const WaveArray shortA{0, 0, 0, 0, 40, 60}, shortB{0, 0, 0, 0, 100, 120};
    ExpectDrawings("peaktrace", {{"envelope",
                                  [&](RecordingSurface& s) {
                                      DrawPeakTrace(WaveCanvas(s, 1), a, b, 600, 1, positions(0, 2),
                                                    QStringLiteral("EDGE"), QStringLiteral("OFF"));
                                  }},
                                 {"half-scale-early-end", [&](RecordingSurface& s) {
                                      DrawPeakEnvelope(WaveCanvas(s, 2), shortA, shortB, 5, 30, 125, 299, 600,
                                                       true);
                                  }}});
}

} // namespace
