#include "drawtesting.h"
#include "text/language.h"
#include "wave/cursorpalette.h"
#include "wave/readout.h"
#include "wave/wavecolors.h"

namespace {

// A Y-T picture at 100% with both kinds of cursor shown at their start places
// (X1 52, X2 297: 245 pixels; Y1 59, Y2 259: 200 pixels).
struct Readouts {
    Readouts()
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

struct ReadoutFixture : Readouts, ::testing::Test {};

// The readouts as drawn over the picture, each case a change to the start
// above. Full screen: the time, then each ticked channel down the right; dT =
// 245 x 1.234ms x 12 / 300 = 12.0932ms shows as "12.09ms" and the frequency is
// 1 / 12.09ms (82.71Hz), not 1 / 12.0932ms (82.69Hz). X-Y reads volts on both
// axes (9.8V across with CH1, 1.6V down with CH2). The spectrum's lines follow,
// aligned to the right edge less 8 a character (the first 10 further right);
// on a split screen the upper volts double and the spectrum reads the lower
// pair (X3 79, X4 270; Y3 162.5, Y4 254). In alternate trigger each half takes
// its time base (4.90ms; 38.20us from row 230) and no spectrum lines; without
// B's time base the lower half keeps only its volts. Unreadable spectrum
// scales show "????". Black on white, every text is grey.
TEST(DisplayCursorM, Pictures)
{
    const auto readouts = [](std::function<void(Readouts&)> change) {
        return [=](RecordingSurface& s) {
            Readouts r;
            change(r);
            DrawReadouts(s, DisplayCursorM(r.cursors, r.in));
        };
    };
    const auto spectrum = [](float horizScale, float vrms, int8_t scaleType, int16_t dbVrms) {
        return [=](Readouts& r) {
            r.cursors.CursorYShown = r.cursors.CursorXShown = true;
            r.in = ReadoutInput{};
            r.in.SpectrumShown = true;
            r.in.f32FFTHorizScale = horizScale;
            r.in.f32FFTVrms = vrms;
            r.in.s8FFTScaleType = scaleType;
            r.in.s16FFTdBVrms = dbVrms;
            r.in.VrmsName = QStringLiteral("Vrms");
        };
    };
    const auto alternation = [](bool timeB) {
        return [=](Readouts& r) {
            r.in.geometry = CursorGeometry{2, true};
            r.in.Alternation = r.in.SpectrumShown = true;
            r.in.TimeScaleAText = QStringLiteral("1.000ms");
            r.in.TimeScaleBText = QLatin1String(timeB ? "10.00us" : "");
        };
    };
    ExpectDrawings("readouts", {{"full-screen", readouts([](Readouts&) {})},
                                {"cursors-at-one-place", readouts([](Readouts& r) {
                                     r.cursors.CursorX1 = r.cursors.CursorX2 = r.cursors.CursorY1 =
                                         r.cursors.CursorY2 = 140;
                                     r.in.ChannelTicked = {false, false, false, true, false};
                                 })},
                                {"xy", readouts([](Readouts& r) { r.in.XYMode = true; })},
                                {"spectrum", readouts([](Readouts& r) {
                                     r.in.SpectrumShown = true;
                                     r.in.ChannelTicked = {};
                                 })},
                                {"spectrum-split", readouts([](Readouts& r) {
                                     r.in.geometry.SplitScreen = r.in.SpectrumShown = true;
                                     r.in.ChannelTicked = {false, true, true, true, true};
                                 })},
                                {"alternation", readouts(alternation(true))},
                                {"alternation-without-time-b", readouts(alternation(false))},
                                {"spectrum-vrms", readouts(spectrum(250, 0.05f, 0, 0))},
                                {"spectrum-decibels", readouts(spectrum(250, 0, 1, 10))},
                                {"spectrum-no-horizontal-scale", readouts(spectrum(0, 0.05f, 0, 0))},
                                {"spectrum-no-vrms-scale", readouts(spectrum(-1, 0, 0, 10))},
                                {"spectrum-no-decibel-scale", readouts(spectrum(1e6f, 0.5f, 1, 0))},
                                {"black-on-white", readouts([](Readouts& r) {
                                     r.in.ColorMode = false;
                                     r.in.SpectrumShown = true;
                                 })}});
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
