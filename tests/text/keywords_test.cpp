#include "text/keywords.h"
#include "textcase.h"

#include <gtest/gtest.h>

namespace {

constexpr int Chinese = 0;
constexpr int English = 1;

struct KeywordCase {
    const char* routine;
    QString (*convert)(const QString&, int);
    const char* input;
    int language;
    const char* expected;
};

void PrintTo(const KeywordCase& c, std::ostream* os)
{
    *os << c.routine << "(\"" << c.input << "\", " << c.language << ") -> \"" << c.expected << "\"";
}

class KeywordTable : public ::testing::TestWithParam<KeywordCase> {};

TEST_P(KeywordTable, Converts)
{
    const KeywordCase& c = GetParam();
    EXPECT_EQ(c.convert(QString::fromUtf8(c.input), c.language), QString::fromUtf8(c.expected));
}

#define K(routine, input, language, expected)                                                                \
    KeywordCase                                                                                              \
    {                                                                                                        \
#routine, routine, input, language, expected                                                         \
    }

INSTANTIATE_TEST_SUITE_P(
    RunAndOnOff, KeywordTable,
    ::testing::Values(K(RunStateToWire, "RUN", English, ":RUN"), K(RunStateToWire, "STOP", English, ":STOP"),
                      K(RunStateToWire, "运行", Chinese, ":RUN"), K(RunStateToWire, "RUN", Chinese, ":STOP"),
                      K(RunStateFromReply, "STOP\n", English, "STOP"),
                      K(RunStateFromReply, "", English, "RUN"), K(RunStateFromReply, "STOP", Chinese, "停止"),
                      K(RunStateFromReply, "RUN", Chinese, "运行"), K(OnOffToWire, "ON", English, "ON"),
                      K(OnOffToWire, "打开", Chinese, "ON"), K(OnOffToWire, "x", English, "OFF"),
                      K(OnOffFromReply, "1", English, "ON"), K(OnOffFromReply, "1\n", Chinese, "打开"),
                      K(OnOffFromReply, "ON", English, "OFF"), K(OnOffFromReply, "", Chinese, "关闭"),
                      K(HfRejectFromReply, "1.0", English, "ON"),
                      K(HfRejectFromReply, " 1\n", Chinese, "打开"),
                      K(HfRejectFromReply, "0", English, "OFF"), K(HfRejectFromReply, "", English, "OFF")));

INSTANTIATE_TEST_SUITE_P(
    AcquireAndDisplay, KeywordTable,
    ::testing::Values(
        K(SamplingToWire, "REAL_TIME", English, "RTIME"), K(SamplingToWire, "实时采样", Chinese, "RTIME"),
        K(SamplingToWire, "x", English, "ETIME"), K(SamplingFromReply, "RTIME", English, "REAL_TIME"),
        K(SamplingFromReply, "ETIME", Chinese, "等效采样"), K(SamplingFromReply, "", English, "EQUAL_TIME"),
        K(AcquisitionToWire, "PEAKDETECT", English, "PEAKDETECT"),
        K(AcquisitionToWire, "普通", Chinese, "NORMAL"), K(AcquisitionToWire, "", English, "AVERAGE"),
        K(AcquisitionFromReply, "NORMAL", Chinese, "普通"), K(AcquisitionFromReply, "?", English, "AVERAGE"),
        K(DisplayTypeToWire, "VECTORS", English, "VECTORS"), K(DisplayTypeToWire, "矢量", English, "DOTS"),
        K(DisplayTypeFromReply, "DOTS", Chinese, "点"), K(GridToWire, "HALF", English, "HALF"),
        K(GridToWire, "完全", Chinese, "FULL"), K(GridToWire, "", English, "NONE"),
        K(GridFromReply, "HALF\n", Chinese, "半网格"), K(GridFromReply, "x", English, "NONE")));

INSTANTIATE_TEST_SUITE_P(
    Trigger, KeywordTable,
    ::testing::Values(
        K(TriggerTypeToWire, "ALTERNATIVE", English, "ALTERNATION"),
        K(TriggerTypeToWire, "交替触发", Chinese, "ALTERNATION"),
        K(TriggerTypeToWire, "USER", English, "DURATION"),
        K(TriggerTypeFromReply, "ALTERNATION", English, "ALTERNATIVE"),
        K(TriggerTypeFromReply, "PULSE", Chinese, "脉宽触发"),
        K(TriggerTypeFromReply, "", English, "DURATION"), K(SweepToWire, "NORMAL", English, "NORMAL"),
        K(SweepToWire, "自动", Chinese, "AUTO"), K(SweepToWire, "x", English, "SINGLE"),
        K(SweepFromReply, "AUTO", Chinese, "自动"), K(SweepFromReply, "", English, "SINGLE"),
        K(CouplingToWire, "AC", English, "AC"), K(CouplingToWire, "低频抑制", Chinese, "LF"),
        K(CouplingToWire, "AC", Chinese, "GND"), K(CouplingFromReply, "HF", Chinese, "高频抑制"),
        K(CouplingFromReply, "", English, "GND"), K(EdgeSlopeToWire, "RISING", English, "POSITIVE"),
        K(EdgeSlopeToWire, "下降沿", Chinese, "NEGATIVE"), K(EdgeSlopeToWire, "x", English, "ALTERNATION"),
        K(EdgeSlopeFromReply, "POSITIVE", English, "RISING"),
        K(EdgeSlopeFromReply, "NEGATIVE", Chinese, "下降沿"),
        K(EdgeSlopeFromReply, "", Chinese, "上升&下降沿")));

// Sent without blanks, answered with them.
INSTANTIATE_TEST_SUITE_P(PulseAndSlopeModes, KeywordTable,
                         ::testing::Values(K(PulseModeToWire, "+Less Than", English, "+LESSTHAN"),
                                           K(PulseModeToWire, "负脉宽大于", Chinese, "-GREATERTHAN"),
                                           K(PulseModeToWire, "+Equal", English, "+EQUAL"),
                                           K(PulseModeToWire, "", English, "-EQUAL"),
                                           K(PulseModeFromReply, "+LESS THAN", English, "+Less Than"),
                                           K(PulseModeFromReply, "-GREATER THAN", Chinese, "负脉宽大于"),
                                           K(PulseModeFromReply, "+LESSTHAN", English, "-Equal"),
                                           K(PulseModeFromReply, "", Chinese, "负脉宽等于"),
                                           K(SlopeModeToWire, "上升沿小于", Chinese, "+LESSTHAN"),
                                           K(SlopeModeToWire, "正脉宽小于", Chinese, "-EQUAL"),
                                           K(SlopeModeFromReply, "-LESS THAN", Chinese, "下降沿小于"),
                                           K(SlopeModeFromReply, "+EQUAL", English, "+Equal")));

INSTANTIATE_TEST_SUITE_P(Video, KeywordTable,
                         ::testing::Values(K(VideoPolarityToWire, "POSITIVE", English, "POSITIVE"),
                                           K(VideoPolarityToWire, "正极性", Chinese, "POSITIVE"),
                                           K(VideoPolarityToWire, "x", English, "NEGATIVE"),
                                           K(VideoPolarityFromReply, "NEGATIVE", Chinese, "负极性"),
                                           K(VideoSyncToWire, "ALLlines", English, "ALLLINES"),
                                           K(VideoSyncToWire, "奇数场", Chinese, "ODDFIELD"),
                                           K(VideoSyncToWire, "LINE", English, "LINE"),
                                           K(VideoSyncToWire, "x", English, "EVENFIELD"),
                                           K(VideoSyncFromReply, "ALL LINES", English, "ALLlines"),
                                           K(VideoSyncFromReply, "ODD FIELD", Chinese, "奇数场"),
                                           K(VideoSyncFromReply, "ODDfield", English, "EVENfield"),
                                           K(VideoSyncFromReply, "", Chinese, "偶数场"),
                                           K(DurationQualifierFromReply, "LESS THAN", English, "Less Than"),
                                           K(DurationQualifierFromReply, "GREATER THAN", Chinese, "大于"),
                                           K(DurationQualifierFromReply, "", English, "Equal")));

// An unknown source, a logic input among them, is sent as channel 1.
INSTANTIATE_TEST_SUITE_P(TriggerSource, KeywordTable,
                         ::testing::Values(K(TriggerSourceToWire, "CHANNEL3", English, "CHANNEL3"),
                                           K(TriggerSourceToWire, "EXT5", Chinese, "EXT5"),
                                           K(TriggerSourceToWire, "AC", English, "ACLINE"),
                                           K(TriggerSourceToWire, "市电", Chinese, "ACLINE"),
                                           K(TriggerSourceToWire, "AC", Chinese, "CHANNEL1"),
                                           K(TriggerSourceToWire, "D3", English, "CHANNEL1"),
                                           K(TriggerSourceFromReply, "ACLINE\n", Chinese, "市电"),
                                           K(TriggerSourceFromReply, "ACLINE", English, "AC"),
                                           K(TriggerSourceFromReply, "D7", English, "D7"),
                                           K(TriggerSourceFromReply, "EXT\n", English, "EXT")));

TEST(Keywords, LanguageFreeFields)
{
    EXPECT_EQ(TimeFormatToWire(QStringLiteral("Y-T")), QStringLiteral("YT"));
    EXPECT_EQ(TimeFormatToWire(QStringLiteral("X-Y")), QStringLiteral("XY"));
    EXPECT_EQ(TimeFormatToWire(QStringLiteral("Roll")), QStringLiteral("ROLL"));
    EXPECT_EQ(TimeFormatToWire(QString()), QStringLiteral("ROLL"));
    EXPECT_EQ(TimeFormatFromReply(QStringLiteral("ROLL\n")), QStringLiteral("Roll"));
    EXPECT_EQ(TimeFormatFromReply(QStringLiteral("X-Y")), QStringLiteral("X-Y"));
    EXPECT_EQ(VideoStandardToWire(QStringLiteral("PAL/SECAM")), QStringLiteral("PALSECAM"));
    EXPECT_EQ(VideoStandardToWire(QStringLiteral("NTSC")), QStringLiteral("NTSC"));
    EXPECT_EQ(VideoStandardFromReply(QStringLiteral("PALSECAM\n")), QStringLiteral("PALSECAM"));
    EXPECT_EQ(AcLineText(English), QStringLiteral("AC"));
    EXPECT_EQ(AcLineText(Chinese), QStringLiteral("市电"));
}

TEST(Keywords, LaThresholdKeepsFamiliesAndScalesUserLevels)
{
    EXPECT_EQ(LaThresholdFromReply(QStringLiteral("TTL\n")), QStringLiteral("TTL"));
    EXPECT_EQ(LaThresholdFromReply(QStringLiteral("CMOS")), QStringLiteral("CMOS"));
    EXPECT_EQ(LaThresholdFromReply(QStringLiteral("ECL")), QStringLiteral("ECL"));
    EXPECT_EQ(LaThresholdFromReply(QStringLiteral("USER 1.200")), QStringLiteral("1.20V"));
    EXPECT_EQ(LaThresholdFromReply(QStringLiteral("USER,-0.500")), QStringLiteral("-500mV"));
    EXPECT_EQ(LaThresholdFromReply(QStringLiteral("ttl")), QStringLiteral("0.00uV"));
    EXPECT_EQ(LaThresholdFromReply(QString()), QStringLiteral("0.00uV"));
}

TEST(Keywords, AltSourcesShortenBothSpellings)
{
    EXPECT_EQ(AltSourcesFromReply(QStringLiteral("CHAN1CHAN2")), QStringLiteral("CH1CH2"));
    EXPECT_EQ(AltSourcesFromReply(QStringLiteral("CHANNEL1CHANNEL2\n")), QStringLiteral("CH1CH2"));
    EXPECT_EQ(AltSourcesFromReply(QStringLiteral("CHAN3CHAN4")), QStringLiteral("CH3CH4"));
    EXPECT_EQ(AltSourcesFromReply(QStringLiteral("CHANNEL3CHANNEL4")), QStringLiteral("CH3CH4"));
    EXPECT_EQ(AltSourcesFromReply(QStringLiteral("CHANNEL1CHANNEL3")), QStringLiteral("CHANNEL1CHANNEL3"));
}

} // namespace

namespace {

TEST(Keywords, FollowTheLanguageInForceByDefault)
{
    const int saved = Language;
    Language = LanguageChinese;
    EXPECT_EQ(CouplingFromReply(QStringLiteral("DC")), QStringLiteral("直流"));
    EXPECT_EQ(TriggerSourceToWire(QStringLiteral("市电")), QStringLiteral("ACLINE"));
    Language = LanguageEnglish;
    EXPECT_EQ(CouplingFromReply(QStringLiteral("DC")), QStringLiteral("DC"));
    Language = saved;
}

} // namespace
