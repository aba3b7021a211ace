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

// Every row of data/clamp.txt: shown cursors are held two pixels inside their
// grid, hidden ones stay where they are.
TEST(ClampCursors, KeepsShownCursorsTwoPixelsInsideTheirGrid)
{
    const std::vector<QStringList> rows = DataRows("wave/data/clamp.txt");
    EXPECT_EQ(rows.size(), 7u);
    for (const QStringList& f : rows) {
        ASSERT_EQ(f.size(), 21) << f.join(u' ').toStdString();
        SCOPED_TRACE(f[0].toStdString());
        CursorState c;
        c.CursorXShown = f[3] == u'1';
        c.CursorYShown = f[4] == u'1';
        std::vector<double> after;
        for (int i = 0; i < CursorCount; ++i) {
            c.set(CursorId(i), f[5 + i].toDouble());
            after.push_back(f[13 + i].toDouble());
        }
        ClampCursors(c, CursorGeometry{f[1].toDouble(), f[2] == u'1'});
        EXPECT_EQ(positions(c), after);
    }
}

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
