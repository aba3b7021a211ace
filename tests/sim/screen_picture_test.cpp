#include "files_littleendian.h"
#include "screen/screenpicture.h"

#include <QImage>
#include <gtest/gtest.h>
#include <limits>

namespace {

// The grid's top left pixel on the instrument's screen.
constexpr int kLeft = 10;
constexpr int kTop = 20;

QImage load(const ScreenPicture& picture)
{
    const QByteArray bytes = renderScreenBmp(picture);
    EXPECT_EQ(bytes.size(), 77878);
    return QImage::fromData(bytes, "BMP");
}

ScreenPicture withTrace(int n, QVector<int> codes, int position = 0)
{
    ScreenPicture picture = defaultScreenPicture();
    picture.traces[n].on = true;
    picture.traces[n].codes = std::move(codes);
    picture.traces[n].position = position;
    return picture;
}

TEST(ScreenBmp, HeadersDescribeAn8Bit320By240Picture)
{
    const LittleEndianImage file(renderScreenBmp(defaultScreenPicture()));
    ASSERT_EQ(file.size(), 77878);
    EXPECT_EQ(file.text(0, 2), "BM");
    EXPECT_EQ(file.i32(2), 77878);
    EXPECT_EQ(file.i32(6), 0);
    EXPECT_EQ(file.i32(10), 1078);
    EXPECT_EQ(file.i32(14), 40);
    EXPECT_EQ(file.i32(18), 320);
    EXPECT_EQ(file.i32(22), 240);
    EXPECT_EQ(file.u16(26), 1);
    EXPECT_EQ(file.u16(28), 8);
    EXPECT_EQ(file.i32(30), 0);
    EXPECT_EQ(file.i32(34), 320 * 240);
    EXPECT_EQ(file.i32(46), 256);
    // Palette entries are blue, green, red, zero.
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(file.u8(54 + 4 * i + 3), 0) << i;
}

TEST(ScreenBmp, LoadsAsAnIndexedImage)
{
    const QImage image = load(defaultScreenPicture());
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.size(), QSize(320, 240));
    EXPECT_EQ(image.format(), QImage::Format_Indexed8);
    EXPECT_EQ(image.colorCount(), 256);
}

struct PlacementCase {
    int channel;
    int code;
    int row; // on the screen
    QRgb colour;
};

class ScreenTracePlacement : public ::testing::TestWithParam<PlacementCase> {};

TEST_P(ScreenTracePlacement, AFlatTraceFillsItsRowAcrossTheGrid)
{
    const PlacementCase& c = GetParam();
    const QImage image = load(withTrace(c.channel, QVector<int>(600, c.code)));
    for (int x = kLeft; x < kLeft + 300; ++x)
        ASSERT_EQ(image.pixel(x, c.row), c.colour) << x;
    EXPECT_NE(image.pixel(kLeft + 100, c.row == kTop ? c.row + 1 : c.row - 1), c.colour);
}

INSTANTIATE_TEST_SUITE_P(Codes, ScreenTracePlacement,
                         ::testing::Values(PlacementCase{0, 100, kTop + 100, qRgb(255, 255, 0)},
                                           PlacementCase{1, 0, kTop, qRgb(0, 255, 255)},
                                           PlacementCase{2, 199, kTop + 199, qRgb(255, 0, 255)},
                                           PlacementCase{3, 75, kTop + 75, qRgb(0, 128, 255)},
                                           PlacementCase{4, 130, kTop + 130, qRgb(128, 0, 255)},
                                           // Codes off the grid stay on its edge rows.
                                           PlacementCase{0, -40, kTop, qRgb(255, 255, 0)},
                                           PlacementCase{0, 255, kTop + 199, qRgb(255, 255, 0)}));

// Two points share a column; a jump between neighbours is drawn closed.
TEST(ScreenTrace, StepIsJoinedByAVerticalRun)
{
    QVector<int> codes(600, 50);
    std::fill(codes.begin() + 300, codes.end(), 150);
    const QImage image = load(withTrace(0, codes));
    for (int code = 50; code <= 150; ++code)
        EXPECT_EQ(image.pixel(kLeft + 150, kTop + code), qRgb(255, 255, 0)) << code;
    EXPECT_NE(image.pixel(kLeft + 148, kTop + 150), qRgb(255, 255, 0));
}

TEST(ScreenTrace, PeakPointsFillTheSpanBetweenTheirTwoCodes)
{
    ScreenPicture picture = withTrace(1, QVector<int>(600, 110));
    picture.traces[1].peakCodes = QVector<int>(600, 90);
    const QImage image = load(picture);
    for (int code = 90; code <= 110; ++code)
        EXPECT_EQ(image.pixel(kLeft + 40, kTop + code), qRgb(0, 255, 255)) << code;
    EXPECT_NE(image.pixel(kLeft + 40, kTop + 89), qRgb(0, 255, 255));
    EXPECT_NE(image.pixel(kLeft + 40, kTop + 111), qRgb(0, 255, 255));
}

bool colourInBox(const QImage& image, QRect box, QRgb colour)
{
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); ++x)
            if (image.pixel(x, y) == colour) return true;
    return false;
}

// The channel's mark stands in the left margin at its zero line, code 100 - position.
TEST(ScreenTrace, MarkFollowsThePosition)
{
    const QImage image = load(withTrace(2, QVector<int>(600, 0), 40));
    const int zeroRow = kTop + 100 - 40;
    EXPECT_TRUE(colourInBox(image, QRect(0, zeroRow - 3, kLeft - 1, 7), qRgb(255, 0, 255)));
    EXPECT_FALSE(colourInBox(image, QRect(0, kTop + 100 - 3, kLeft - 1, 7), qRgb(255, 0, 255)));
}

TEST(ScreenTrace, TraceThatIsOffLeavesThePictureAlone)
{
    ScreenPicture picture = withTrace(0, QVector<int>(600, 100));
    picture.traces[0].on = false;
    picture.traces[0].legend = "CH1 1.00V";
    EXPECT_EQ(renderScreenBmp(picture), renderScreenBmp(defaultScreenPicture()));
}

TEST(ScreenMarkers, TriggerLevelPointsAtItsRowFromTheRightMargin)
{
    ScreenPicture picture = defaultScreenPicture();
    picture.triggerRow = 60;
    const QImage image = load(picture);
    EXPECT_EQ(image.pixel(kLeft + 302, kTop + 60), qRgb(255, 128, 0));
    EXPECT_NE(image.pixel(kLeft + 302, kTop + 70), qRgb(255, 128, 0));
}

TEST(ScreenMarkers, TextsChangeTheBandsTheyStandIn)
{
    ScreenPicture running = defaultScreenPicture();
    ScreenPicture stopped = running;
    stopped.runText = "STOP";
    const QImage a = load(running), b = load(stopped);
    EXPECT_NE(a.copy(0, 0, 320, kTop - 1), b.copy(0, 0, 320, kTop - 1));
    EXPECT_EQ(a.copy(0, kTop, 320, 240 - kTop), b.copy(0, kTop, 320, 240 - kTop));
}

TEST(ScreenXy, Ch1RunsAcrossAndCh2Down)
{
    ScreenPicture picture = defaultScreenPicture();
    picture.xyMode = true;
    picture.traces[0].codes = {100, 0};
    picture.traces[1].codes = {100, 100};
    const QImage image = load(picture);
    EXPECT_EQ(image.pixel(kLeft + 150, kTop + 100), qRgb(0, 255, 0));
    EXPECT_EQ(image.pixel(kLeft + 250, kTop + 100), qRgb(0, 255, 0));
}

TEST(ScreenBmp, AnyInputGivesAWholePicture)
{
    ScreenPicture picture = defaultScreenPicture();
    constexpr int big = std::numeric_limits<int>::max(), small = std::numeric_limits<int>::min();
    for (ScreenTrace& trace : picture.traces) {
        trace.on = true;
        trace.codes = QVector<int>(5000, big);
        trace.peakCodes = {small, 3};
        trace.position = small;
        trace.legend = QString(200, QChar(0x4E2D));
    }
    picture.triggerRow = big;
    picture.triggerColumn = small;
    picture.runText = QString(400, 'W');
    picture.timeText = QString(400, 'W');
    picture.triggerText = QString("\u00B5\t\n");
    EXPECT_FALSE(load(picture).isNull());
    picture.traces[0].codes.clear();
    picture.xyMode = true;
    EXPECT_FALSE(load(picture).isNull());
}

} // namespace
