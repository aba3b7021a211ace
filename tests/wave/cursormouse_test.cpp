#include "drawtesting.h"
#include "wave/cursormouse.h"

static void PrintTo(CursorId id, std::ostream* os)
{
    *os << "cursor " << static_cast<int>(id);
}

namespace {

struct HitCase {
    const char* name;
    bool xShown, yShown, split;
    double zoom;
    QPointF at;
    std::optional<CursorId> vertical, horizontal;
};

void PrintTo(const HitCase& c, std::ostream* os)
{
    *os << c.name;
}

// X1 and X2 4 pixels apart at 100 and 104, Y1 and Y2 at 60 and 64; lower set at
// X3 100, X4 104, Y3 160, Y4 164.
CursorState crowded(bool xShown, bool yShown)
{
    CursorState c;
    c.CursorX1 = c.CursorX3 = 100;
    c.CursorX2 = c.CursorX4 = 104;
    c.CursorY1 = 60;
    c.CursorY2 = 64;
    c.CursorY3 = 160;
    c.CursorY4 = 164;
    c.CursorXShown = xShown;
    c.CursorYShown = yShown;
    return c;
}

class HitCursorsTest : public ::testing::TestWithParam<HitCase> {};

TEST_P(HitCursorsTest, FirstCursorWithinThreePixelsWins)
{
    const HitCase& t = GetParam();
    const CursorHit hit = HitCursors(crowded(t.xShown, t.yShown), t.at, CursorGeometry{t.zoom, t.split});
    EXPECT_EQ(hit.vertical, t.vertical);
    EXPECT_EQ(hit.horizontal, t.horizontal);
}

constexpr auto X1 = CursorId::X1, X2 = CursorId::X2, X3 = CursorId::X3, X4 = CursorId::X4;
constexpr auto Y1 = CursorId::Y1, Y2 = CursorId::Y2, Y3 = CursorId::Y3, Y4 = CursorId::Y4;
const std::optional<CursorId> None;

INSTANTIATE_TEST_SUITE_P(
    Cases, HitCursorsTest,
    ::testing::Values(HitCase{"WithinBothTakesX1", true, true, false, 1, {102, 200}, X1, None},
                      HitCase{"ThreeFromX1TakesX2", true, true, false, 1, {103, 200}, X2, None},
                      HitCase{"JustInside", true, true, false, 1, {97.01, 200}, X1, None},
                      HitCase{"JustOutside", true, true, false, 1, {97, 200}, None, None},
                      HitCase{"PastX2", true, true, false, 1, {107, 200}, None, None},
                      HitCase{"OneOfEachInOnePress", true, true, false, 1, {101, 62}, X1, Y1},
                      HitCase{"Y2", true, true, false, 1, {200, 66}, None, Y2},
                      HitCase{"NoVerticalWithCursorXOff", false, true, false, 1, {101, 62}, None, Y1},
                      HitCase{"NoHorizontalWithCursorYOff", true, false, false, 1, {101, 62}, X1, None},
                      HitCase{"NothingShown", false, false, false, 1, {101, 62}, None, None},
                      // Full screen: the lower set is never tested.
                      HitCase{"LowerSetOnlyWhenSplit", true, true, false, 1, {200, 161}, None, None},
                      // Split: from the middle row 25 + 100z down the lower set is tested instead.
                      HitCase{"SplitUpper", true, true, true, 1, {101, 62}, X1, Y1},
                      HitCase{"SplitMiddleRowIsLower", true, true, true, 1, {103, 125}, X4, None},
                      HitCase{"SplitLower", true, true, true, 1, {101, 161}, X3, Y3},
                      HitCase{"SplitLowerY4", true, true, true, 1, {200, 166}, None, Y4},
                      HitCase{"SplitZoom2StillUpper", true, true, true, 2, {101, 224}, X1, None},
                      HitCase{"SplitZoom2Lower", true, true, true, 2, {101, 225}, X3, None}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(CursorMouse, PressDragReleaseMovesTheTakenCursorsOnly)
{
    CursorState c = crowded(true, true);
    const CursorGeometry g{1, false};
    EXPECT_EQ(PressCursors(c, {103.5, 62}, g), (CursorHit{X2, Y1}));
    EXPECT_TRUE(c.dragging(X2) && c.dragging(Y1));
    EXPECT_TRUE(DragCursors(c, {180, 90.6}));
    EXPECT_EQ(c.CursorX2, 180);
    EXPECT_EQ(c.CursorY1, 90.6);
    EXPECT_EQ(c.CursorX1, 100);
    EXPECT_EQ(c.CursorY2, 64);
    ReleaseCursors(c);
    for (bool held : c.Dragging)
        EXPECT_FALSE(held);
    EXPECT_FALSE(DragCursors(c, {10, 10}));
    EXPECT_EQ(c.CursorX2, 180);
}

TEST(CursorMouse, HeldWholeRowCursorTakesARoundedRow)
{
    CursorState c = crowded(true, true);
    PressCursors(c, {300, 64}, CursorGeometry{});
    DragCursors(c, {300, 120.5});
    EXPECT_EQ(c.CursorY2, 120);
}

TEST(CursorMouse, PointerShapeFollowsTheHeldOrHoveredCursor)
{
    const CursorGeometry g{1, false};
    CursorState c = crowded(true, true);
    EXPECT_EQ(PointerShapeAt(c, {101, 200}, g), PointerShape::EastWest);
    EXPECT_EQ(PointerShapeAt(c, {200, 61}, g), PointerShape::NorthSouth);
    EXPECT_EQ(PointerShapeAt(c, {101, 61}, g), PointerShape::EastWest);
    EXPECT_EQ(PointerShapeAt(c, {200, 200}, g), PointerShape::Default);
    // Outside the grid the lines are not there to grab.
    EXPECT_EQ(PointerShapeAt(c, {101, 10}, g), PointerShape::Default);
    EXPECT_EQ(PointerShapeAt(c, {330, 61}, g), PointerShape::Default);
    EXPECT_EQ(PointerShapeAt(crowded(false, false), {101, 61}, g), PointerShape::Default);
    // While held, the shape stays wherever the pointer goes.
    PressCursors(c, {200, 61}, g);
    EXPECT_EQ(PointerShapeAt(c, {0, 0}, g), PointerShape::NorthSouth);
    ReleaseCursors(c);
    PressCursors(c, {101, 200}, g);
    EXPECT_EQ(PointerShapeAt(c, {0, 0}, g), PointerShape::EastWest);
    EXPECT_EQ(static_cast<int>(PointerShape::EastWest), 9);
    EXPECT_EQ(static_cast<int>(PointerShape::NorthSouth), 7);
}

} // namespace
