#include "drawtesting.h"
#include "wave/drawgrid.h"
#include "wave/wavecolors.h"

namespace {

// Pixels of one dotted row or column: `count` dots from `first` on, `step` apart.
Path row(double y, double step, int count)
{
    Path p;
    for (int k = 0; k < count; ++k)
        p.emplace_back(25 + k * step, y);
    return p;
}

Path column(double x, double step, int count)
{
    Path p;
    for (int k = 0; k < count; ++k)
        p.emplace_back(x, 25 + k * step);
    return p;
}

Path pixelsOf(const RecordingSurface& s)
{
    Path p;
    for (const SurfaceCall& c : s.callsOf(SurfaceCall::Pixel))
        p.push_back(c.to);
    return p;
}

Path drawGrid(double zoom, bool split, bool gridOn, RecordingSurface& s)
{
    WaveRecord r;
    r.ColorMode = true;
    r.SplitScreen = split;
    r.GridOn = gridOn;
    DrawScrGrid(WaveCanvas(s, zoom), r);
    return pixelsOf(s);
}

// Zoom 1 in full: background, frame, cross, the tick loop's one pass (i = 1: the
// bottom and right edges at 2i and 3i inside, the others at i and 2i; split
// columns dotted every 6.25), the dotted grid (split: quarter rows too), and the
// maker's text in orange; black on white without colour.
TEST(DrawScrGrid, PicturesAtZoomOne)
{
    const auto grid = [](bool colour, bool split, bool gridOn) {
        return [=](RecordingSurface& s) {
            WaveRecord r;
            r.ColorMode = colour;
            r.SplitScreen = split;
            r.GridOn = gridOn;
            DrawScrGrid(WaveCanvas(s, 1), r);
        };
    };
    ExpectDrawings("grid", {{"ticks", grid(true, false, false)},
                            {"split-ticks", grid(true, true, false)},
                            {"dotted", grid(true, false, true)},
                            {"split-dotted", grid(true, true, true)},
                            {"black-on-white", grid(false, false, false)}});
}

// The "grid" rows of data/traces.txt: 496 tick pixels a pass (464 split); the
// dotted grid adds 1082 (split: 122 a pass for the quarter rows, then 1466). At
// zoom 2 the tenth step of 0.1 passes 2 by rounding, so the loop makes ten
// passes; below zoom 1 it makes none. At zoom 0.01 the column steps of 0.05 add
// up past 2 after 40 dots.
TEST(DrawScrGrid, PixelsPerZoom)
{
    for (const QStringList& f : TraceRows("grid", 5)) {
        RecordingSurface s;
        EXPECT_EQ(drawGrid(f[1].toDouble(), f[2] == u'1', f[3] == u'1', s).size(), f[4].toUInt());
    }
}

TEST(DrawScrGrid, ZoomTwoPlacesFirstPassAtTheScaledEdges)
{
    RecordingSurface s;
    const Path pixels = drawGrid(2, false, false, s);
    ASSERT_EQ(pixels.size(), 4960u);
    EXPECT_EQ(Path(pixels.begin(), pixels.begin() + 61), row(26, 10, 61));
    EXPECT_EQ(Path(pixels.begin() + 222, pixels.begin() + 283), row(423, 10, 61)); // 25 + 200z - 2i
    EXPECT_EQ(Path(pixels.begin() + 446, pixels.begin() + 487), column(623, 10, 41));
    EXPECT_EQ(Path(pixels.begin() + 487, pixels.begin() + 496), column(622, 50, 9));
    EXPECT_NEAR(pixels[4960 - 496].y(), 26.9, 1e-9) << "the last pass has i near 1.9";
}

} // namespace
