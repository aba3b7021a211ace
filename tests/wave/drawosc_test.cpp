#include "drawtesting.h"
#include "wave/drawgrid.h"
#include "wave/drawosc.h"

#include <functional>

namespace {

void show(WaveRecord& r, int channel)
{
    r.setShowChannel(channel, true);
    r.PrevShow[channel] = true;
    r.ScaleText[channel] = QStringLiteral("1.00V");
    r.OffsetText[channel] = QStringLiteral("0.00V");
    r.channelWave(channel) = Ramp(2049);
    r.channelPeak(channel) = Ramp(2049, 150);
}

void showMath(WaveRecord& r)
{
    r.ShowMath = r.PrevShow[5] = true;
    r.Parameter.f32MathScale = 1.0f;
    r.WaveMath = Ramp(1025);
    r.WaveFFT = Ramp(2049);
}

struct OscCase {
    const char* name;
    std::function<void(WaveRecord&)> setup;
    QStringList texts; // every text DrawOSC writes, in order
};

void PrintTo(const OscCase& c, std::ostream* os)
{
    *os << c.name;
}

QStringList textsOf(const RecordingSurface& s)
{
    QStringList texts;
    for (const SurfaceCall& c : TextsOf(s))
        texts << c.text;
    return texts;
}

const QString timeTexts[] = {QStringLiteral("T"), QStringLiteral("Delay:0.000s"), QStringLiteral("1.000ms")};

QStringList withTime(QStringList texts)
{
    for (const QString& t : timeTexts)
        texts << t;
    return texts;
}

class DrawOscTest : public ::testing::TestWithParam<OscCase> {};

TEST_P(DrawOscTest, DrawsWhatTheRecordHolds)
{
    WaveRecord r = YtRecord();
    GetParam().setup(r);
    RecordingSurface s;
    DrawOSC(WaveCanvas(s, 1), r);
    EXPECT_EQ(textsOf(s), GetParam().texts);
}

INSTANTIATE_TEST_SUITE_P(
    Records, DrawOscTest,
    ::testing::Values(
        OscCase{"NoData", [](WaveRecord& r) { show(r, 1), r.HasData = false; }, {}},
        OscCase{"NoChannel", [](WaveRecord&) {}, withTime({})},
        OscCase{"ChannelsInOrder", [](WaveRecord& r) { show(r, 3), show(r, 1); },
                withTime({"1", "CH1 1.00V", "3", "CH3 1.00V"})},
        OscCase{"WantedButNotRead", [](WaveRecord& r) { show(r, 2), r.PrevShow[2] = false; }, withTime({})},
        OscCase{"ReadButNoLongerWanted", [](WaveRecord& r) { show(r, 2), r.ShowCH2 = false; }, withTime({})},
        OscCase{"MathLegend", [](WaveRecord& r) { showMath(r); }, withTime({"m", "Math scale 1.00V"})},
        OscCase{"RollAlone", [](WaveRecord& r) { r.YTMode = false, r.RollMode = true, show(r, 4); },
                withTime({"4", "CH4 1.00V"})},
        OscCase{"AlternateTimeBases",
                [](WaveRecord& r) {
                    r.TriggerMode = QStringLiteral("ALTERNATION");
                    r.TimeScaleAText = r.TimeScaleBText = QStringLiteral("1.000s");
                    r.TimeOffsetAText = r.TimeOffsetBText = QStringLiteral("0.000s");
                },
                {"T", "T", "Delay1: 0.000s", "1.000s", "Delay2: 0.000s", "1.000s"}},
        OscCase{"XyMode",
                [](WaveRecord& r) {
                    r.YTMode = false, r.XYMode = true, show(r, 1), show(r, 2);
                    r.ScaleText[2] = QStringLiteral("2.00V");
                },
                {"X-Y Mode", "CH1 1.00V", "CH2 2.00V"}},
        OscCase{"NoTimeBaseFormat", [](WaveRecord& r) { r.YTMode = false, show(r, 1); }, {}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DrawOSC, ColoursChannelsThenMathThenTimeMarker)
{
    WaveRecord r = YtRecord();
    show(r, 2);
    show(r, 4);
    showMath(r);
    RecordingSurface s;
    DrawOSC(WaveCanvas(s, 1), r);
    std::vector<QColor> colours;
    for (const SurfaceCall& c : s.callsOf(SurfaceCall::ForeColor))
        colours.push_back(c.color);
    EXPECT_EQ(colours, (std::vector<QColor>{QColor(0, 255, 255), QColor(0, 128, 255), QColor(128, 0, 255),
                                            QColor(255, 128, 0), QColor(255, 255, 255)}));
    r.ColorMode = false;
    s.reset();
    DrawOSC(WaveCanvas(s, 1), r);
    for (const SurfaceCall& c : s.callsOf(SurfaceCall::ForeColor))
        EXPECT_EQ(c.color, QColor(0, 0, 0));
}

// Steps from the current point in the outlines of a channel or math marker (4),
// the centre triangle (2) and the T pointer (4).
constexpr std::size_t OutlineSteps = 4 + 2 + 4;

// CH1 as an ordinary trace (one line, then 597 from the current point), then in
// peak detect (an envelope of lines only).
TEST(DrawOSC, PeakBitChoosesTheEnvelope)
{
    WaveRecord r = YtRecord();
    show(r, 1);
    RecordingSurface plain;
    DrawOSC(WaveCanvas(plain, 1), r);
    EXPECT_EQ(plain.callsOf(SurfaceCall::LineTo).size(), 597u + OutlineSteps);

    r.Parameter.s16ChanPeakState = 1;
    RecordingSurface peak;
    DrawOSC(WaveCanvas(peak, 1), r);
    EXPECT_EQ(peak.callsOf(SurfaceCall::LineTo).size(), OutlineSteps);
    // 3 first lines, 3 a step, 1 closing, and one Line opening each of the three outlines.
    EXPECT_EQ(peak.callsOf(SurfaceCall::Line).size(), 3u + 3u * 597u + 1u + 3u);
}

struct MathTraceCase {
    const char* name;
    const char* fft;
    int8_t mathEnabled;
    int8_t fftEnabled;
    std::size_t traceSteps; // LineTo calls beyond the outlines
};

class DrawOscMathTest : public ::testing::TestWithParam<MathTraceCase> {};

// Math steps: 2 start + 2 from index 2, x from 26 to 324 (597 steps). FFT with
// horizontal offset 0 and width 500: x from 176 to 324 (297 steps).
TEST_P(DrawOscMathTest, TraceFollowsEnableBytes)
{
    const MathTraceCase& c = GetParam();
    WaveRecord r = YtRecord();
    showMath(r);
    r.FFTDisplayText = QString::fromLatin1(c.fft);
    r.Parameter.s8MathEnabled_Stop = c.mathEnabled;
    r.Parameter.s8FFTEnabled_Stop = c.fftEnabled;
    r.Parameter.s8FFTScreen = 1;
    RecordingSurface s;
    DrawOSC(WaveCanvas(s, 1), r);
    EXPECT_EQ(s.callsOf(SurfaceCall::LineTo).size(), c.traceSteps + OutlineSteps);
}

INSTANTIATE_TEST_SUITE_P(Enables, DrawOscMathTest,
                         ::testing::Values(MathTraceCase{"MathOn", "OFF", 1, 0, 597},
                                           MathTraceCase{"MathOffAtStop", "OFF", 0, 1, 0},
                                           MathTraceCase{"MathByteNotOne", "OFF", -1, 0, 0},
                                           MathTraceCase{"FftOn", "ON", 0, 1, 297},
                                           MathTraceCase{"FftOffAtStop", "ON", 1, 0, 0}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(DrawOSC, WithoutDataThePictureIsGridAndMakerText)
{
    WaveRecord r = YtRecord();
    show(r, 1);
    showMath(r);
    r.HasData = false;
    RecordingSurface grid, picture;
    DrawScrGrid(WaveCanvas(grid, 1), r);
    DrawScrGrid(WaveCanvas(picture, 1), r);
    DrawOSC(WaveCanvas(picture, 1), r);
    EXPECT_EQ(picture.calls(), grid.calls());
    EXPECT_EQ(textsOf(picture), QStringList{QStringLiteral("KORVA")});
}

} // namespace
