#include "drawtesting.h"
#include "wave/cursormouse.h"

static void PrintTo(CursorId id, std::ostream* os)
{
    *os << "cursor " << static_cast<int>(id);
}

namespace {

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

// Every row of data/cursorhits.txt: the first cursor within three pixels wins,
// one of each direction; on a split screen the lower set is tested from the
// middle row 25 + 100z down, and never on a full screen.
TEST(HitCursors, FirstCursorWithinThreePixelsWins)
{
    const auto id = [](const QString& name) {
        return name == u'-' ? std::optional<CursorId>()
                            : std::optional(CursorId((name[0] == u'Y' ? 4 : 0) + name.mid(1).toInt() - 1));
    };
    const std::vector<QStringList> rows = DataRows("wave/data/cursorhits.txt");
    EXPECT_EQ(rows.size(), 17u);
    for (const QStringList& f : rows) {
        ASSERT_EQ(f.size(), 9) << f.join(u' ').toStdString();
        SCOPED_TRACE(f[0].toStdString());
        const CursorHit hit =
            HitCursors(crowded(f[1] == u'1', f[2] == u'1'), {f[5].toDouble(), f[6].toDouble()},
                       CursorGeometry{f[4].toDouble(), f[3] == u'1'});
        EXPECT_EQ(hit.vertical, id(f[7]));
        EXPECT_EQ(hit.horizontal, id(f[8]));
    }
}

constexpr auto X1 = CursorId::X1, X2 = CursorId::X2, Y1 = CursorId::Y1;

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
