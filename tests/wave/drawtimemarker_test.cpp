#include "drawtesting.h"
#include "wave/drawtimemarker.h"

namespace {

// The trigger column p = 150 - (offset / scale) 25 with scale "1.000s": at p <= 3
// a left arrow, at p >= 296 a right arrow, between them the pointer with its "T";
// the centre triangle always; the delay and scale texts under the grid. Each
// edge is drawn exactly at and just inside its bound, and again at zoom 2. In
// alternate trigger A's marker takes the upper row and B's (in B's colour) the
// lower.
TEST(DrawTimeMarker, Pictures)
{
    const auto marker = [](const char* offset, double zoom, bool colour = true) {
        return [=](RecordingSurface& s) {
            DrawTimeMarker(WaveCanvas(s, zoom), QStringLiteral("1.000s"), QString::fromLatin1(offset),
                           colour);
        };
    };
    const auto alternate = [](const char* offsetB, double zoom, bool colour) {
        return [=](RecordingSurface& s) {
            DrawAltTimeMarkers(WaveCanvas(s, zoom), QStringLiteral("1.000s"),
                               QLatin1String(colour ? "2.000s" : "1.000s"), QStringLiteral("0.000s"),
                               QString::fromLatin1(offsetB), colour);
        };
    };
    ExpectDrawings("timemarker", {{"exactly-three-takes-left-arrow", marker("5.880s", 1)},
                                  {"beyond-left", marker("100.0s", 1)},
                                  {"just-inside-left", marker("5.860s", 1)},
                                  {"centre", marker("0.000s", 1)},
                                  {"centre-black-and-white", marker("0.000s", 1, false)},
                                  {"just-inside-right", marker("-5.800s", 1)},
                                  {"exactly-296-takes-right-arrow", marker("-5.840s", 1)},
                                  {"centre-zoom-two", marker("0.000s", 2)},
                                  {"right-zoom-two", marker("-20.00s", 2)},
                                  {"alternate-pointer-and-left-arrow", alternate("11.76s", 1, true)},
                                  {"alternate-lower-right-arrow-zoom-two", alternate("-6.000s", 2, false)}});
}

TEST(DrawTimeMarker, ZeroScaleDrawsNothing)
{
    RecordingSurface s;
    DrawTimeMarker(WaveCanvas(s, 1), QStringLiteral("0.000s"), QStringLiteral("1.000s"), true);
    DrawTimeMarker(WaveCanvas(s, 1), QString(), QString(), true);
    EXPECT_TRUE(s.calls().empty());
}

} // namespace
