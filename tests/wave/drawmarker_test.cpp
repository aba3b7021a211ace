#include "drawtesting.h"
#include "wave/wavedrawing.h"

namespace {

struct MarkerCase {
    const char* name;
    int channel;
    const char* offset; // with scale "1.00V": 4.00V gives y 0, -4.00V y 200, 1.00V y 75
    const char* triggerMode;
    const char* fftDisplay;
    int8_t fftScreen;
    const char* sourcePair; // the alternate trigger's source pair
    double zoom;
    Path outline; // without the closing point
    QPointF digit;
    QPointF legend;
};

void PrintTo(const MarkerCase& c, std::ostream* os)
{
    *os << c.name;
}

// Shapes at zoom 1: below (down arrow) X 12, Y = 25 + row - 15; above (up arrow)
// X 12, Y = 25 + row + 15; inside (pentagon) X 6, Y = 25 + L + y / div - 5.
Path down(double Y)
{
    return {{12, Y}, {22, Y}, {22, Y + 13}, {17, Y + 17}, {12, Y + 13}};
}
Path up(double Y)
{
    return {{12, Y}, {22, Y}, {22, Y - 13}, {17, Y - 17}, {12, Y - 13}};
}
Path inside(double Y)
{
    return {{6, Y}, {19, Y}, {23, Y + 5}, {19, Y + 10}, {6, Y + 10}};
}

const QPointF legend1(25, 228), legend2(100, 228), legend3(25, 238), legend4(100, 238);

class DrawChannelMarkerTest : public ::testing::TestWithParam<MarkerCase> {};

TEST_P(DrawChannelMarkerTest, ShapeDigitAndLegend)
{
    const MarkerCase& c = GetParam();
    RecordingSurface s;
    DrawChannelMarker(PairCanvas(s, c.zoom, c.sourcePair), c.channel, QString::fromLatin1(c.offset),
                      QStringLiteral("1.00V"), QString::fromLatin1(c.triggerMode),
                      QString::fromLatin1(c.fftDisplay), c.fftScreen);
    EXPECT_EQ(PathOf(s.calls()), Closed(c.outline));
    const std::vector<SurfaceCall> texts = TextsOf(s);
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].text, QString::number(c.channel));
    EXPECT_EQ(texts[0].to, c.digit);
    EXPECT_TRUE(texts[0].opaque);
    EXPECT_EQ(texts[1].text, QStringLiteral("CH%1 1.00V").arg(c.channel));
    EXPECT_EQ(texts[1].to, c.legend);
    EXPECT_FALSE(texts[1].opaque);
}

INSTANTIATE_TEST_SUITE_P(
    Markers, DrawChannelMarkerTest,
    ::testing::Values(
        // Exactly four divisions above the centre is y 0: the up arrow; below, y 200: the down arrow.
        MarkerCase{"Ch1Above", 1, "4.00V", "EDGE", "OFF", 1, "", 1, up(40), {14, 27}, legend1},
        MarkerCase{"Ch2AboveDigitOneHigher", 2, "4.00V", "EDGE", "OFF", 1, "", 1, up(40), {14, 26}, legend2},
        MarkerCase{"Ch3Above", 3, "4.00V", "EDGE", "OFF", 1, "", 1, up(40), {14, 27}, legend3},
        MarkerCase{
            "Ch1BelowDigitOneLower", 1, "-4.00V", "EDGE", "OFF", 1, "", 1, down(210), {14, 212}, legend1},
        MarkerCase{"Ch4Below", 4, "-4.00V", "EDGE", "OFF", 1, "", 1, down(210), {14, 211}, legend4},
        MarkerCase{"Ch2Inside", 2, "1.00V", "EDGE", "OFF", 1, "", 1, inside(95), {10, 94}, legend2},
        MarkerCase{"Ch3Centre", 3, "0.00V", "EDGE", "OFF", 1, "", 1, inside(120), {10, 119}, legend3},
        // A shared spectrum halves the screen: inside rows halve, CH1's bottom
        // clip and CH4's top clip move to the middle, CH4's bottom clip does not.
        MarkerCase{"Ch1InsideSplit", 1, "1.00V", "EDGE", "ON", 0, "", 1, inside(57.5), {10, 56.5}, legend1},
        MarkerCase{"Ch1BelowSplit", 1, "-4.00V", "EDGE", "ON", 0, "", 1, down(110), {14, 112}, legend1},
        MarkerCase{"Ch4AboveSplit", 4, "4.00V", "EDGE", "ON", 0, "", 1, up(140), {14, 127}, legend4},
        MarkerCase{"Ch4BelowSplit", 4, "-4.00V", "EDGE", "ON", 0, "", 1, down(210), {14, 211}, legend4},
        MarkerCase{
            "Ch4InsideSplitStaysUp", 4, "1.00V", "EDGE", "ON", 0, "", 1, inside(57.5), {10, 56.5}, legend4},
        // Alternate trigger: CH2 and CH3 change halves with the pair's order.
        MarkerCase{
            "AltCh1", 1, "1.00V", "ALTERNATION", "OFF", 1, "CH3CH4", 1, inside(57.5), {10, 56.5}, legend1},
        MarkerCase{"AltCh2Ordered",
                   2,
                   "1.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "CH1CH2",
                   1,
                   inside(157.5),
                   {10, 156.5},
                   legend2},
        MarkerCase{"AltCh2NotOrdered",
                   2,
                   "1.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "CH2CH3",
                   1,
                   inside(57.5),
                   {10, 56.5},
                   legend2},
        MarkerCase{"AltCh3Ordered",
                   3,
                   "1.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "chan3chan4",
                   1,
                   inside(57.5),
                   {10, 56.5},
                   legend3},
        MarkerCase{"AltCh3NotOrdered",
                   3,
                   "1.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "CH2CH3",
                   1,
                   inside(157.5),
                   {10, 156.5},
                   legend3},
        MarkerCase{
            "AltCh4", 4, "1.00V", "ALTERNATION", "OFF", 1, "CH1CH4", 1, inside(157.5), {10, 156.5}, legend4},
        MarkerCase{"AltCh2BelowNotOrdered",
                   2,
                   "-4.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "CH2CH3",
                   1,
                   down(110),
                   {14, 111},
                   legend2},
        MarkerCase{"AltCh2BelowOrdered",
                   2,
                   "-4.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "CH1CH2",
                   1,
                   down(210),
                   {14, 211},
                   legend2},
        MarkerCase{"AltCh2AboveOrdered",
                   2,
                   "4.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "CH1CH2",
                   1,
                   up(140),
                   {14, 126},
                   legend2},
        MarkerCase{"AltCh3BelowOrdered",
                   3,
                   "-4.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "CH3CH4",
                   1,
                   down(110),
                   {14, 111},
                   legend3},
        MarkerCase{"AltCh3AboveNotOrdered",
                   3,
                   "4.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "CH2CH3",
                   1,
                   up(140),
                   {14, 127},
                   legend3},
        MarkerCase{
            "AltCh1Below", 1, "-4.00V", "ALTERNATION", "OFF", 1, "CH1CH2", 1, down(110), {14, 112}, legend1},
        MarkerCase{
            "AltCh4Above", 4, "4.00V", "ALTERNATION", "OFF", 1, "CH1CH2", 1, up(140), {14, 127}, legend4},
        // Zoom scales rows and the lower half's lift (100z, rounded half to even).
        MarkerCase{"Zoom2Inside", 1, "1.00V", "EDGE", "OFF", 1, "", 2, inside(170), {10, 169}, {25, 431}},
        MarkerCase{
            "Zoom2AltCh4", 4, "1.00V", "ALTERNATION", "OFF", 1, "", 2, inside(295), {10, 294}, {175, 451}},
        MarkerCase{"Zoom2Below", 3, "-4.00V", "EDGE", "OFF", 1, "", 2, down(410), {14, 411}, {25, 451}},
        MarkerCase{"LiftRoundsToEven",
                   4,
                   "1.00V",
                   "ALTERNATION",
                   "OFF",
                   1,
                   "",
                   0.125,
                   inside(36.6875),
                   {10, 35.6875},
                   {34.375, 51.625}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DrawChannelMarker, ZeroScaleDrawsNothing)
{
    RecordingSurface s;
    DrawChannelMarker(WaveCanvas(s, 1), 1, QStringLiteral("1.00V"), QStringLiteral("0"),
                      QStringLiteral("EDGE"), QStringLiteral("OFF"), 1);
    DrawChannelMarker(WaveCanvas(s, 1), 5, QStringLiteral("1.00V"), QStringLiteral("1.00V"),
                      QStringLiteral("EDGE"), QStringLiteral("OFF"), 1);
    EXPECT_TRUE(s.calls().empty());
}

} // namespace
