#include "drawtesting.h"
#include "wave/drawtimemarker.h"

namespace {

// Trigger column p = 150 - (offset / scale) 25, with scale "1.000s".
struct MarkerCase {
    const char* name;
    const char* offset;
    double zoom;
    Path arrow; // without the closing point
    QPointF letter;
};

void PrintTo(const MarkerCase& c, std::ostream* os)
{
    *os << c.name;
}

Path leftArrow(double Y)
{
    return {{42, Y}, {30, Y}, {26, Y + 5}, {30, Y + 10}, {42, Y + 10}};
}
Path rightArrow(double X, double Y)
{
    return {{X, Y}, {X + 12, Y}, {X + 16, Y + 5}, {X + 12, Y + 10}, {X, Y + 10}};
}
Path pointer(double X, double Y)
{
    return {{X, Y}, {X + 8, Y}, {X + 8, Y + 10}, {X + 4, Y + 14}, {X, Y + 10}};
}

// The outlines of a run of calls, split at each Line that does not start at the current point.
std::vector<Path> outlinesOf(const std::vector<SurfaceCall>& calls)
{
    std::vector<Path> outlines;
    for (const SurfaceCall& c : calls) {
        if (c.kind == SurfaceCall::Line) outlines.push_back({c.from, c.to});
        if (c.kind == SurfaceCall::LineTo && !outlines.empty()) outlines.back().push_back(c.to);
    }
    return outlines;
}

class DrawTimeMarkerTest : public ::testing::TestWithParam<MarkerCase> {};

TEST_P(DrawTimeMarkerTest, TriangleArrowAndLegends)
{
    const MarkerCase& c = GetParam();
    const double z = c.zoom;
    RecordingSurface s;
    DrawTimeMarker(WaveCanvas(s, z), QStringLiteral("1.000s"), QString::fromLatin1(c.offset), true);
    const double cx = 150 * z + 25 - 4;
    EXPECT_EQ(outlinesOf(s.calls()),
              (std::vector<Path>{Closed({{cx, 26}, {cx + 8, 26}, {cx + 4, 30}}), Closed(c.arrow)}));
    const std::vector<SurfaceCall> texts = TextsOf(s);
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_EQ(texts[0].text, QStringLiteral("T"));
    EXPECT_EQ(texts[0].to, c.letter);
    EXPECT_TRUE(texts[0].opaque);
    EXPECT_EQ(texts[1].text, QStringLiteral("Delay:") + QString::fromLatin1(c.offset));
    EXPECT_EQ(texts[1].to, QPointF(25 + 200 * z, 25 + 203 * z));
    EXPECT_TRUE(texts[1].opaque);
    EXPECT_EQ(texts[2].text, QStringLiteral("1.000s"));
    EXPECT_EQ(texts[2].to, QPointF(25 + 150 * z, 25 + 203 * z));
    EXPECT_FALSE(texts[2].opaque);
}

INSTANTIATE_TEST_SUITE_P(
    Columns, DrawTimeMarkerTest,
    ::testing::Values(MarkerCase{"ExactlyThreeTakesLeftArrow", "5.880s", 1, leftArrow(30), {33, 30}},
                      MarkerCase{"BeyondLeft", "100.0s", 1, leftArrow(30), {33, 30}},
                      MarkerCase{"JustInsideLeft", "5.860s", 1, pointer(3.5 + 21, 30), {25.5, 31}},
                      MarkerCase{"Centre", "0.000s", 1, pointer(171, 30), {172, 31}},
                      MarkerCase{"JustInsideRight", "-5.800s", 1, pointer(295 + 21, 30), {317, 31}},
                      MarkerCase{
                          "ExactlyTwoNinetySixTakesRightArrow", "-5.840s", 1, rightArrow(308, 30), {311, 30}},
                      MarkerCase{"CentreZoomTwo", "0.000s", 2, pointer(321, 30), {322, 31}},
                      MarkerCase{"RightZoomTwo", "-20.00s", 2, rightArrow(608, 30), {611, 30}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DrawTimeMarker, Colours)
{
    RecordingSurface s;
    DrawTimeMarker(WaveCanvas(s, 1), QStringLiteral("1.000s"), QStringLiteral("0.000s"), true);
    const std::vector<SurfaceCall> fore = s.callsOf(SurfaceCall::ForeColor);
    ASSERT_EQ(fore.size(), 2u);
    EXPECT_EQ(fore[0].color, QColor(255, 128, 0));
    EXPECT_EQ(fore[1].color, QColor(255, 255, 255));
    s.reset();
    DrawTimeMarker(WaveCanvas(s, 1), QStringLiteral("1.000s"), QStringLiteral("0.000s"), false);
    for (const SurfaceCall& c : s.callsOf(SurfaceCall::ForeColor))
        EXPECT_EQ(c.color, QColor(0, 0, 0));
}

TEST(DrawTimeMarker, ZeroScaleDrawsNothing)
{
    RecordingSurface s;
    DrawTimeMarker(WaveCanvas(s, 1), QStringLiteral("0.000s"), QStringLiteral("1.000s"), true);
    DrawTimeMarker(WaveCanvas(s, 1), QString(), QString(), true);
    EXPECT_TRUE(s.calls().empty());
}

TEST(DrawAltTimeMarkers, TwoMarkersAndFourLegends)
{
    // A: p1 = 150 (pointer at 171); B: p2 = 3 (left arrow on the lower row).
    RecordingSurface s;
    DrawAltTimeMarkers(WaveCanvas(s, 1), QStringLiteral("1.000s"), QStringLiteral("2.000s"),
                       QStringLiteral("0.000s"), QStringLiteral("11.76s"), true);
    EXPECT_EQ(outlinesOf(s.calls()),
              (std::vector<Path>{Closed({{171, 26}, {179, 26}, {175, 30}}), Closed(pointer(171, 30)),
                                 Closed({{171, 126}, {179, 126}, {175, 130}}), Closed(leftArrow(130))}));
    const std::vector<SurfaceCall>& calls = s.calls();
    std::vector<std::tuple<QString, QPointF, bool, QColor>> texts;
    for (std::size_t i = 0; i < calls.size(); ++i)
        if (calls[i].kind == SurfaceCall::Text)
            texts.emplace_back(calls[i].text, calls[i].to, calls[i].opaque, s.foreColorAt(i));
    const QColor marker(255, 128, 0), sourceB(0, 255, 255);
    EXPECT_EQ(texts, (std::vector<std::tuple<QString, QPointF, bool, QColor>>{
                         {QStringLiteral("T"), {172, 31}, true, marker},
                         {QStringLiteral("T"), {33, 130}, true, marker},
                         {QStringLiteral("Delay1: 0.000s"), {175, 228}, true, marker},
                         {QStringLiteral("1.000s"), {163, 110}, false, marker},
                         {QStringLiteral("Delay2: 11.76s"), {255, 228}, true, sourceB},
                         {QStringLiteral("2.000s"), {163, 210}, false, sourceB}}));
}

TEST(DrawAltTimeMarkers, LowerRightArrowAtZoomTwo)
{
    RecordingSurface s;
    DrawAltTimeMarkers(WaveCanvas(s, 2), QStringLiteral("1.000s"), QStringLiteral("1.000s"),
                       QStringLiteral("0.000s"), QStringLiteral("-6.000s"), false);
    const std::vector<Path> outlines = outlinesOf(s.calls());
    ASSERT_EQ(outlines.size(), 4u);
    EXPECT_EQ(outlines[2], Closed({{321, 226}, {329, 226}, {325, 230}}));
    EXPECT_EQ(outlines[3], Closed(rightArrow(608, 230)));
    for (const SurfaceCall& c : s.callsOf(SurfaceCall::ForeColor))
        EXPECT_EQ(c.color, QColor(0, 0, 0));
}

} // namespace
