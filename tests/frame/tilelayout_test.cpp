#include "frame/tilelayout.h"

#include <gtest/gtest.h>

namespace {

struct TileCase {
    QRect area;
    int count;
    bool horizontal;
};

class Tiles : public ::testing::TestWithParam<TileCase> {};

// Tiles touch one another, run in order and cover the area exactly.
TEST_P(Tiles, CoverTheAreaWithoutGapOrOverlap)
{
    const TileCase& c = GetParam();
    const QList<QRect> rects = TileRects(c.area, c.count, c.horizontal);
    ASSERT_EQ(rects.size(), c.count);
    int covered = 0;
    for (int i = 0; i < rects.size(); ++i) {
        const QRect& r = rects[i];
        EXPECT_EQ(c.horizontal ? r.width() : r.height(), c.horizontal ? c.area.width() : c.area.height());
        if (i > 0) {
            const int after = c.horizontal ? rects[i - 1].bottom() + 1 : rects[i - 1].right() + 1;
            EXPECT_EQ(c.horizontal ? r.top() : r.left(), after);
        }
        covered += r.width() * r.height();
    }
    EXPECT_EQ(covered, c.count ? c.area.width() * c.area.height() : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, Tiles,
    ::testing::Values(TileCase{QRect(0, 0, 900, 600), 3, true}, TileCase{QRect(0, 0, 900, 600), 3, false},
                      TileCase{QRect(10, 20, 301, 203), 7, true}, TileCase{QRect(10, 20, 301, 203), 7, false},
                      TileCase{QRect(0, 0, 500, 400), 1, false}, TileCase{QRect(0, 0, 500, 400), 0, true}));

TEST(IconRects, LineUpFromTheBottomLeftRowAboveRow)
{
    const QList<QRect> rects = IconRects(QRect(0, 0, 350, 400), 4, QSize(160, 30));
    ASSERT_EQ(rects.size(), 4);
    EXPECT_EQ(rects[0], QRect(0, 370, 160, 30));
    EXPECT_EQ(rects[1], QRect(160, 370, 160, 30));
    EXPECT_EQ(rects[2], QRect(0, 340, 160, 30));
    EXPECT_EQ(rects[3], QRect(160, 340, 160, 30));
    EXPECT_TRUE(IconRects(QRect(0, 0, 300, 300), 3, QSize(0, 20)).isEmpty())
        << "an empty size places nothing";
    EXPECT_EQ(IconRects(QRect(0, 0, 50, 300), 2, QSize(100, 20)).size(), 2) << "one to a row when none fits";
}

} // namespace
