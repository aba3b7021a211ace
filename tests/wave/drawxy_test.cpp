#include "drawtesting.h"
#include "wave/drawxy.h"

namespace {

TEST(DrawXyTrace, OneWideDotPerPointMirroredAcross)
{
    const WaveArray ch1{0, 250, 0, 100, 7}, ch2{0, 0, 200, 50, 7};
    RecordingSurface s;
    DrawXyTrace(WaveCanvas(s, 2), ch1, ch2, 3);
    std::vector<SurfaceCall> expected(5);
    expected[0].kind = SurfaceCall::LineWidth;
    expected[0].width = 2;
    const QPointF dots[] = {{25, 25}, {525, 425}, {325, 125}}; // 25 + (250 - A) z, 25 + B z
    for (int i = 0; i < 3; ++i) {
        expected[1 + i].kind = SurfaceCall::Pixel;
        expected[1 + i].to = dots[i];
    }
    expected[4].kind = SurfaceCall::LineWidth;
    expected[4].width = 1;
    EXPECT_EQ(s.calls(), expected);
}

TEST(DrawXyTrace, EndsWithTheShorterArray)
{
    RecordingSurface s;
    DrawXyTrace(WaveCanvas(s, 1), WaveArray(601, 0), WaveArray(10, 0), 600);
    EXPECT_EQ(s.callsOf(SurfaceCall::Pixel).size(), 9u);
    EXPECT_EQ(s.calls().back().width, 1);
}

struct XyLegendCase {
    bool colorMode;
    QColor mode, ch1, ch2;
};

class DrawXyLegendTest : public ::testing::TestWithParam<XyLegendCase> {};

TEST_P(DrawXyLegendTest, TextsAndColours)
{
    const XyLegendCase& c = GetParam();
    RecordingSurface s;
    DrawXyLegend(WaveCanvas(s, 2), QStringLiteral("1.00V"), QStringLiteral("500mV"), c.colorMode);
    const std::vector<SurfaceCall>& calls = s.calls();
    std::vector<std::tuple<QString, QPointF, QColor>> texts;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        if (calls[i].kind != SurfaceCall::Text) continue;
        EXPECT_FALSE(calls[i].opaque);
        texts.emplace_back(calls[i].text, calls[i].to, s.foreColorAt(i));
    }
    EXPECT_EQ(texts, (std::vector<std::tuple<QString, QPointF, QColor>>{
                         {QStringLiteral("X-Y Mode"), {245, 10}, c.mode},
                         {QStringLiteral("CH1 1.00V"), {25, 433}, c.ch1},
                         {QStringLiteral("CH2 500mV"), {175, 433}, c.ch2}}));
}

INSTANTIATE_TEST_SUITE_P(Modes, DrawXyLegendTest,
                         ::testing::Values(XyLegendCase{true, QColor(0, 255, 0), QColor(255, 255, 0),
                                                        QColor(0, 255, 255)},
                                           XyLegendCase{false, Qt::black, Qt::black, Qt::black}));

} // namespace
