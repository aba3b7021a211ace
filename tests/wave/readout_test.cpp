#include "drawtesting.h"
#include "text/language.h"
#include "wave/cursorpalette.h"
#include "wave/readout.h"
#include "wave/wavecolors.h"

static void PrintTo(const ReadoutLine& l, std::ostream* os)
{
    *os << '"' << l.text.toStdString() << "\" at (" << l.at.x() << ", " << l.at.y() << ") in "
        << l.color.name().toStdString();
}

namespace {

const QColor Time(255, 0, 255);
const QColor CH1(255, 255, 0);
const QColor CH2(0, 255, 255);
const QColor Math(128, 0, 255);

// A Y-T picture at 100% with both kinds of cursor shown at their start places
// (X1 52, X2 297: 245 pixels; Y1 59, Y2 259: 200 pixels).
struct ReadoutFixture : ::testing::Test {
    ReadoutFixture()
    {
        cursors.CursorXShown = cursors.CursorYShown = true;
        in.TimeScaleText = QStringLiteral("1.234ms");
        in.ScaleText = {QString(), QStringLiteral("1.00V"), QStringLiteral("200mV"), QStringLiteral("50.0mV"),
                        QStringLiteral("2.00V")};
        in.ChannelTicked = {false, true, true, false, false};
        in.f32FFTHorizScale = 1000;
        in.f32FFTVrms = 0.5f;
        in.VrmsName = QStringLiteral("Vrms");
    }
    std::vector<ReadoutLine> lines() const { return DisplayCursorM(cursors, in); }

    CursorState cursors;
    ReadoutInput in;
};

TEST_F(ReadoutFixture, FullScreenTimeThenTickedChannelsDownTheRight)
{
    // dT = 245 x 1.234ms x 12 / 300 = 12.0932ms, shown as "12.09ms"; the
    // frequency is 1 / 12.09ms (82.71Hz), not 1 / 12.0932ms (82.69Hz).
    EXPECT_EQ(lines(), (std::vector<ReadoutLine>{
                           {QStringLiteral("|X1-X2|   =12.09ms"), Time, {185, 30}},
                           {QStringLiteral("1/|X1-X2|=82.71Hz"), Time, {185, 50}},
                           {QStringLiteral("|Y1-Y2|  =8.0V"), CH1, {185, 70}},
                           {QStringLiteral("|Y1-Y2|  =1.6V"), CH2, {185, 90}},
                       }));
}

TEST_F(ReadoutFixture, CursorsAtOnePlaceGiveZeroTimeAndNoFrequency)
{
    cursors.CursorX1 = cursors.CursorX2 = 140;
    cursors.CursorY1 = cursors.CursorY2 = 140;
    in.ChannelTicked = {false, false, false, true, false};
    EXPECT_EQ(lines(), (std::vector<ReadoutLine>{
                           {QStringLiteral("|X1-X2|   =0.000s"), Time, {185, 30}},
                           {QStringLiteral("1/|X1-X2|=???.? Hz"), Time, {185, 50}},
                           {QStringLiteral("|Y1-Y2|  =0.0mV"), ChannelColor(3, true), {185, 70}},
                       }));
}

TEST_F(ReadoutFixture, HiddenCursorsAndAnEmptyTimeScaleLeaveTheirLinesOut)
{
    cursors.CursorXShown = false;
    ASSERT_EQ(lines().size(), 2u);
    EXPECT_EQ(lines()[0].at, QPointF(185, 30));
    EXPECT_EQ(lines()[0].text, QStringLiteral("|Y1-Y2|  =8.0V"));
    cursors.CursorXShown = true;
    in.TimeScaleText.clear();
    EXPECT_EQ(lines().size(), 2u);
    cursors.CursorYShown = false;
    EXPECT_TRUE(lines().empty());
}

TEST_F(ReadoutFixture, XyModeReadsVoltsOnBothAxes)
{
    in.XYMode = true;
    // 245 x 1V x 12 / 300 = 9.8V across with CH1; 200 x 0.2V x 8 / 200 = 1.6V down with CH2.
    EXPECT_EQ(lines(), (std::vector<ReadoutLine>{
                           {QStringLiteral("|X1-X2|  =9.8V"), CH1, {185, 30}},
                           {QStringLiteral("|Y1-Y2|  =1.6V"), CH2, {185, 50}},
                       }));
    cursors.CursorXShown = false;
    EXPECT_EQ(lines().size(), 1u);
}

TEST_F(ReadoutFixture, SpectrumLinesFollowAlignedToTheRight)
{
    in.SpectrumShown = true;
    in.ChannelTicked = {};
    // 245 x 1000Hz x 12 / 300 = 9800Hz; 200 x 0.5V x 8 / 200 = 4V. Right edge 325
    // less 8 a character, the first line 10 further right.
    const QString freq = QStringLiteral("FFT|X1-X2|   =9.800kHz");
    const QString level = QStringLiteral("FFT|Y1-Y2|  =4.00Vrms");
    const std::vector<ReadoutLine> l = lines();
    ASSERT_EQ(l.size(), 4u);
    EXPECT_EQ(l[2], (ReadoutLine{freq, Math, {325 - 8.0 * freq.size() + 10, 70}}));
    EXPECT_EQ(l[3], (ReadoutLine{level, Math, {325 - 8.0 * level.size(), 90}}));
}

struct SpectrumCase {
    const char* name;
    float horizScale, vrms;
    int8_t scaleType;
    int16_t dbVrms;
    const char* freqLine;
    const char* levelLine;
};

void PrintTo(const SpectrumCase& c, std::ostream* os)
{
    *os << c.name;
}

class SpectrumReadoutTest : public ::testing::TestWithParam<SpectrumCase> {};

TEST_P(SpectrumReadoutTest, Texts)
{
    const SpectrumCase& t = GetParam();
    CursorState cursors; // X 245 pixels apart, Y 200
    ReadoutInput in;
    in.SpectrumShown = true;
    in.f32FFTHorizScale = t.horizScale;
    in.f32FFTVrms = t.vrms;
    in.s8FFTScaleType = t.scaleType;
    in.s16FFTdBVrms = t.dbVrms;
    in.VrmsName = QStringLiteral("Vrms");
    const std::vector<ReadoutLine> l = DisplayCursorM(cursors, in);
    ASSERT_EQ(l.size(), 2u);
    EXPECT_EQ(l[0].text, QString::fromLatin1(t.freqLine));
    EXPECT_EQ(l[1].text, QString::fromLatin1(t.levelLine));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SpectrumReadoutTest,
    ::testing::Values(
        SpectrumCase{"Vrms", 250, 0.05f, 0, 0, "FFT|X1-X2|   =2.450kHz", "FFT|Y1-Y2|  =400mVrms"},
        SpectrumCase{"Decibels", 250, 0, 1, 10, "FFT|X1-X2|   =2.450kHz", "FFT|Y1-Y2|  =80.0dBVrms"},
        SpectrumCase{"NoHorizontalScale", 0, 0.05f, 0, 0, "FFT|X1-X2|   =????", "FFT|Y1-Y2|  =400mVrms"},
        SpectrumCase{"NoVrmsScale", -1, 0, 0, 10, "FFT|X1-X2|   =????", "FFT|Y1-Y2|  =????"},
        SpectrumCase{"NoDecibelScale", 1e6f, 0.5f, 1, 0, "FFT|X1-X2|   =9.800MHz", "FFT|Y1-Y2|  =????"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(ReadoutFixture, SpectrumSplitDoublesTheUpperVoltsAndReadsTheSpectrumBelow)
{
    in.geometry.SplitScreen = true;
    in.SpectrumShown = true;
    in.ChannelTicked = {false, true, true, true, true};
    // Lower set: X3 79, X4 270 (191 pixels: 7640Hz), Y3 162.5, Y4 254 (91.5 pixels: 1.83V).
    const QString freq = QStringLiteral("FFT|X1-X2|   =7.640kHz");
    const QString level = QStringLiteral("FFT|Y1-Y2|  =1.83Vrms");
    EXPECT_EQ(lines(), (std::vector<ReadoutLine>{
                           {QStringLiteral("|X1-X2|   =12.09ms"), Time, {185, 30}},
                           {QStringLiteral("1/|X1-X2|=82.71Hz"), Time, {185, 50}},
                           {QStringLiteral("|Y1-Y2|  =16.0V"), CH1, {185, 70}},
                           {QStringLiteral("|Y1-Y2|  =3.2V"), CH2, {185, 90}},
                           {freq, Math, {325 - 8.0 * freq.size() + 10, 130}},
                           {level, Math, {325 - 8.0 * level.size(), 150}},
                       }));
}

TEST_F(ReadoutFixture, AlternationGivesEachHalfItsTimeBase)
{
    in.geometry = CursorGeometry{2, true};
    in.Alternation = true;
    in.TimeScaleAText = QStringLiteral("1.000ms");
    in.TimeScaleBText = QStringLiteral("10.00us");
    in.SpectrumShown = true; // no spectrum lines in alternate trigger
    // Upper: 245 px x 1ms x 12 / 300 / 2 = 4.9ms; 200 px x 1V x 8 / 200 / 2 x 2 = 8V.
    // Lower from row 25 + 200 + 5: 191 px x 10us ... = 38.2us; 91.5 px x 0.2V ... x 2 = 732mV.
    EXPECT_EQ(lines(), (std::vector<ReadoutLine>{
                           {QStringLiteral("|X1-X2|   =4.90ms"), Time, {485, 30}},
                           {QStringLiteral("1/|X1-X2|=204.08Hz"), Time, {485, 50}},
                           {QStringLiteral("|Y1-Y2|  =8.0V"), CH1, {485, 70}},
                           {QStringLiteral("|X1-X2|   =38.20us"), Time, {485, 230}},
                           {QStringLiteral("1/|X1-X2|=26.18KHz"), Time, {485, 250}},
                           {QStringLiteral("|Y1-Y2|  =732.0mV"), CH2, {485, 270}},
                       }));
    in.TimeScaleBText.clear();
    const std::vector<ReadoutLine> l = lines();
    ASSERT_EQ(l.size(), 4u);
    EXPECT_EQ(l[3].text, QStringLiteral("|Y1-Y2|  =732.0mV"));
    EXPECT_EQ(l[3].at, QPointF(485, 230));
}

TEST_F(ReadoutFixture, BlackOnWhiteTextsAreGrey)
{
    in.ColorMode = false;
    in.SpectrumShown = true;
    for (const ReadoutLine& l : lines())
        EXPECT_EQ(l.color, QBColor(7)) << l.text.toStdString();
}

TEST_F(ReadoutFixture, UnreadableNumbersNeverStopTheReadouts)
{
    for (double zoom : {0.0, -1.0, std::nan(""), 1e300}) {
        in.geometry.Zoom = zoom;
        in.TimeScaleText = QStringLiteral("junk");
        in.ScaleText[1] = QStringLiteral(">9.9E+37");
        EXPECT_EQ(lines().size(), 4u) << zoom;
    }
}

TEST(ReadoutInputOf, TakesWhatTheReadoutsNeedFromTheRecord)
{
    WaveRecord r = YtRecord();
    r.SplitScreen = true;
    r.TriggerMode = QStringLiteral("ALTERNATION");
    r.TimeScaleAText = QStringLiteral("1.000ms");
    r.ScaleText[3] = QStringLiteral("5.00V");
    r.setShowChannel(3, true);
    r.FFTDisplayText = QStringLiteral("ON");
    r.Parameter.f32FFTVrms = 0.25f;
    r.Parameter.s16FFTdBVrms = 20;
    const ReadoutInput in = ReadoutInputOf(r, 1.5, LanguageChinese);
    EXPECT_EQ(in.geometry.Zoom, 1.5);
    EXPECT_TRUE(in.geometry.SplitScreen && in.Alternation && in.ColorMode);
    EXPECT_EQ(in.TimeScaleAText, QStringLiteral("1.000ms"));
    EXPECT_EQ(in.ScaleText[3], QStringLiteral("5.00V"));
    EXPECT_EQ(in.ChannelTicked, (std::array<bool, 5>{false, false, false, true, false}));
    EXPECT_FALSE(in.SpectrumShown); // the spectrum counts only with math displayed
    EXPECT_EQ(in.f32FFTVrms, 0.25f);
    EXPECT_EQ(in.s16FFTdBVrms, 20);
    EXPECT_EQ(in.VrmsName, QStringLiteral("均方根值"));
    r.ShowMath = true;
    EXPECT_TRUE(ReadoutInputOf(r, 1, LanguageEnglish).SpectrumShown);
    EXPECT_EQ(ReadoutInputOf(r, 1, LanguageEnglish).VrmsName, QStringLiteral("Vrms"));
}

} // namespace
