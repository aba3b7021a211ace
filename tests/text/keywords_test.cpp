#include "text/keywords.h"
#include "textcase.h"

#include <gtest/gtest.h>

namespace {

constexpr int Chinese = 0;
constexpr int English = 1;

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
