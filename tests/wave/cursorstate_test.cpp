#include "drawtesting.h"
#include "wave/cursorstate.h"

namespace {

std::vector<double> positions(const CursorState& c)
{
    std::vector<double> all;
    for (int i = 0; i < CursorCount; ++i)
        all.push_back(c.at(CursorId(i)));
    return all;
}

void expectPositions(const CursorState& c, const std::vector<double>& expected)
{
    const std::vector<double> actual = positions(c);
    for (int i = 0; i < CursorCount; ++i)
        EXPECT_NEAR(actual[i], expected[i], 1e-9) << "cursor " << i;
}

const std::vector<double> StartValues{52, 297, 79, 270, 59, 259, 162.5, 254};

TEST(CursorState, StartsAtTheEightStartValuesAndInitPutsThemBack)
{
    CursorState c;
    EXPECT_EQ(positions(c), StartValues);
    for (int i = 0; i < CursorCount; ++i)
        c.set(CursorId(i), 100 + i);
    c.CursorXShown = true;
    c.Dragging[2] = true;
    CursorInit(c);
    EXPECT_EQ(positions(c), StartValues);
    EXPECT_TRUE(c.CursorXShown);
    EXPECT_TRUE(c.Dragging[2]);
}

TEST(CursorState, SecondAndFourthRowsHoldWholeSixteenBitNumbers)
{
    CursorState c;
    const std::vector<std::pair<double, int>> cases{{100.5, 100}, {101.5, 102},   {99.4, 99},
                                                    {1e9, 32767}, {-1e9, -32768}, {std::nan(""), 0}};
    for (const auto& [value, whole] : cases) {
        c.set(CursorId::Y2, value);
        c.set(CursorId::Y4, value);
        EXPECT_EQ(c.CursorY2, whole) << value;
        EXPECT_EQ(c.CursorY4, whole) << value;
    }
    c.set(CursorId::Y1, 100.5);
    c.set(CursorId::Y3, 100.5);
    EXPECT_EQ(c.CursorY1, 100.5);
    EXPECT_EQ(c.CursorY3, 100.5);
}

struct ClampCase {
    const char* name;
    double zoom;
    bool split;
    bool xShown, yShown;
    std::vector<double> before; // X1..X4, Y1..Y4
    std::vector<double> after;
};

void PrintTo(const ClampCase& c, std::ostream* os)
{
    *os << c.name;
}

class ClampCursorsTest : public ::testing::TestWithParam<ClampCase> {};

TEST_P(ClampCursorsTest, KeepsShownCursorsTwoPixelsInsideTheirGrid)
{
    const ClampCase& t = GetParam();
    CursorState c;
    c.CursorXShown = t.xShown;
    c.CursorYShown = t.yShown;
    for (int i = 0; i < CursorCount; ++i)
        c.set(CursorId(i), t.before[i]);
    ClampCursors(c, CursorGeometry{t.zoom, t.split});
    EXPECT_EQ(positions(c), t.after);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ClampCursorsTest,
    ::testing::Values(
        // Full screen at 100%: 27 .. 323 across, 27 .. 223 down; the lower set is left alone.
        ClampCase{"FullScreen",
                  1,
                  false,
                  true,
                  true,
                  {0, 400, -9, 900, 0, 300, 500, -4},
                  {27, 323, -9, 900, 27, 223, 500, -4}},
        ClampCase{"Inside",
                  1,
                  false,
                  true,
                  true,
                  {27, 323, 79, 270, 223, 27, 162.5, 254},
                  {27, 323, 79, 270, 223, 27, 162.5, 254}},
        ClampCase{
            "Zoom2", 2, false, true, true, {26, 700, 0, 0, 26, 500, 0, 0}, {27, 623, 0, 0, 27, 423, 0, 0}},
        // Split at 100%: the upper rows end at 123, the lower run 127 .. 223, and
        // the lower vertical pair is held like the upper one.
        ClampCase{"Split",
                  1,
                  true,
                  true,
                  true,
                  {0, 400, -5, 330, 200, 124, 100, 300},
                  {27, 323, 27, 323, 123, 123, 127, 223}},
        ClampCase{"SplitZoomHalf",
                  0.5,
                  true,
                  true,
                  true,
                  {0, 400, 0, 400, 100, 10, 0, 400},
                  {27, 173, 27, 173, 73, 27, 77, 123}},
        // Hidden cursors stay where they are.
        ClampCase{"Hidden",
                  1,
                  true,
                  false,
                  false,
                  {0, 400, 0, 400, 0, 400, 0, 400},
                  {0, 400, 0, 400, 0, 400, 0, 400}},
        ClampCase{"OnlyY",
                  1,
                  false,
                  false,
                  true,
                  {0, 400, 0, 400, 0, 400, 0, 400},
                  {0, 400, 0, 400, 27, 223, 0, 400}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(RescaleCursors, EachCursorKeepsItsRelativePlace)
{
    CursorState c;
    RescaleCursors(c, QSizeF(350, 250), QSizeF(700, 500));
    // X' = (X - 25) / 350 x 700 + 25, Y' = (Y - 25) / 250 x 500 + 25.
    expectPositions(c, {79, 569, 133, 515, 93, 493, 300, 483});
    RescaleCursors(c, QSizeF(700, 500), QSizeF(350, 250));
    expectPositions(c, StartValues);
}

TEST(RescaleCursors, RoundsTheWholeRowsAndSurvivesAnEmptyOldSize)
{
    CursorState c;
    RescaleCursors(c, QSizeF(350, 250), QSizeF(437.5, 312.5)); // 100% to 125%
    EXPECT_DOUBLE_EQ(c.CursorX1, 58.75);
    EXPECT_EQ(c.CursorY4, 311); // 229 x 1.25 + 25 = 311.25
    const std::vector<double> before = positions(c);
    RescaleCursors(c, QSizeF(0, 0), QSizeF(350, 250));
    RescaleCursors(c, QSizeF(350, 250), QSizeF(std::nan(""), std::nan("")));
    EXPECT_EQ(positions(c), before);
}

} // namespace
