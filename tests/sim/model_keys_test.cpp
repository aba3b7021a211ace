// Front-panel keys change the state where the instrument's panel would.
#include "instrument.h"

#include <gtest/gtest.h>

namespace {

TEST(KeysTest, VoltsKnobWalksTheLadderAndFineModeTakesSmallSteps)
{
    Instrument instrument;
    instrument.handle(":KEY:CH1_VOLT_INC");
    EXPECT_EQ(instrument.handle(":CHANNEL1:SCALE?"), "2.000e+00\n");
    instrument.handle(":KEY:CH1_VOLT_DEC 2");
    EXPECT_EQ(instrument.handle(":CHANNEL1:SCALE?"), "5.000e-01\n");
    instrument.handle(":KEY:CH1_VOLT_Z");
    instrument.handle(":KEY:CH1_VOLT_INC");
    EXPECT_EQ(instrument.handle(":CHANNEL1:SCALE?"), "5.100e-01\n");
}

TEST(KeysTest, PositionKnobMovesAFractionOfADivisionPerStep)
{
    Instrument instrument;
    instrument.handle(":KEY:CH2_POS_INC 0"); // a held key's first count still moves once
    instrument.handle(":KEY:CH2_POS_INC 20");
    EXPECT_EQ(instrument.handle(":CHANNEL2:OFFSET?"), "-1.160e+00\n");
    instrument.handle(":KEY:CH2_POS_Z");
    EXPECT_EQ(instrument.handle(":CHANNEL2:OFFSET?"), "0.000e+00\n");
}

TEST(KeysTest, TimeKnobsMoveScaleAndDelay)
{
    Instrument instrument;
    instrument.handle(":KEY:TIME_DEC");
    EXPECT_EQ(instrument.handle(":TIMEBASE:SCALE?"), "2.000e-04\n");
    instrument.handle(":KEY:TIME_POS_INC 5");
    EXPECT_EQ(instrument.handle(":TIMEBASE:OFFSET?"), "4.000e-05\n");
    instrument.handle(":KEY:TIME_POS_Z");
    EXPECT_EQ(instrument.handle(":TIMEBASE:OFFSET?"), "0.000e+00\n");
}

TEST(KeysTest, LevelKnobAndFiftyPercent)
{
    Instrument instrument;
    instrument.handle(":CHANNEL4:DISPLAY ON");
    instrument.handle(":TRIGGER:EDGE:SOURCE CHANNEL4");
    instrument.handle(":KEY:TRIG_LEVEL_INC 25");
    EXPECT_EQ(instrument.handle(":TRIGGER:EDGE:LEVEL?"), "1.000e+00\n");
    instrument.handle(":TRIG%50");
    EXPECT_EQ(instrument.handle(":TRIGGER:EDGE:LEVEL?"), "1.250e+00\n");
}

TEST(KeysTest, RunKeyTogglesAndChannelKeysSwitch)
{
    Instrument instrument;
    instrument.handle(":KEY:RUN");
    EXPECT_EQ(instrument.handle(":TRIGGER:STATUS?"), "STOP\n");
    instrument.handle(":KEY:RUN");
    EXPECT_EQ(instrument.handle(":TRIGGER:STATUS?"), "RUN\n");
    instrument.handle(":KEY:CH3");
    EXPECT_EQ(instrument.handle(":CHANNEL3:DISPLAY?"), "1\n");
    instrument.handle(":KEY"); // the off key acts on the channel last chosen
    EXPECT_EQ(instrument.handle(":CHANNEL3:DISPLAY?"), "0\n");
    EXPECT_EQ(instrument.handle(":CHANNEL1:DISPLAY?"), "1\n");
}

TEST(KeysTest, AutoSetShowsEveryChannelAndTriggersOnChannel1)
{
    Instrument instrument;
    instrument.handle(":TRIGGER:MODE VIDEO");
    instrument.handle(":KEY:AUTO");
    for (int channel = 1; channel <= 4; ++channel)
        EXPECT_EQ(instrument.handle(":CHANNEL" + QByteArray::number(channel) + ":DISPLAY?"), "1\n");
    EXPECT_EQ(instrument.handle(":TRIGGER:MODE?"), "EDGE\n");
    EXPECT_EQ(instrument.handle(":TIMEBASE:SCALE?"), "5.000e-04\n");
    EXPECT_EQ(instrument.handle(":CHANNEL1:SCALE?"), "2.000e+00\n");
}

TEST(KeysTest, KeyLockAndSweepKeys)
{
    Instrument instrument;
    instrument.handle(":KEY:LOCK ENABLE");
    EXPECT_TRUE(instrument.state().keyLocked);
    instrument.handle(":KEY:LOCK DISABLE");
    EXPECT_FALSE(instrument.state().keyLocked);
    instrument.handle(":KEY:TRIGMODE");
    EXPECT_EQ(instrument.handle(":TRIGGER:EDGE:SWEEP?"), "NORMAL\n");
    instrument.handle(":KEY:TRIG_AUTO");
    EXPECT_EQ(instrument.handle(":TRIGGER:EDGE:SWEEP?"), "AUTO\n");
}

TEST(KeysTest, ScreenPictureFollowsTheKeys)
{
    Instrument instrument;
    const QByteArray before = instrument.handle(":DISPLAY:DATA?");
    instrument.handle(":KEY:CH1_VOLT_DEC");
    instrument.handle(":STOP");
    const QByteArray after = instrument.handle(":DISPLAY:DATA?");
    EXPECT_EQ(after.size(), before.size());
    EXPECT_NE(after, before);
    EXPECT_EQ(instrument.screenPicture().runText, "STOP");
    EXPECT_EQ(instrument.screenPicture().traces[0].legend, "CH1 500mV");
}

} // namespace
