// Replies of the simulated instrument in the forms the program's download
// and editors read, and how commands change (or refuse to change) them.
#include "instrument.h"

#include <gtest/gtest.h>

namespace {

struct Exchange {
    const char* query;
    const char* reply;
};

class PowerOnReplyTest : public ::testing::TestWithParam<Exchange> {};

TEST_P(PowerOnReplyTest, AnswersInTheFormTheDownloadReads)
{
    Instrument instrument;
    EXPECT_EQ(instrument.handle(GetParam().query), QByteArray(GetParam().reply));
}

INSTANTIATE_TEST_SUITE_P(
    Download, PowerOnReplyTest,
    ::testing::Values(
        Exchange{"*IDN?", "KORVA TECHNOLOGIES,KV7204B,KV72040001,00.03.05.00.00\n"},
        Exchange{":TRIGGER:STATUS?", "RUN\n"}, Exchange{":TIMEBASE:FORMAT?", "Y-T\n"},
        Exchange{":TIMEBASE:SCALE?", "5.000e-04\n"}, Exchange{":TIMEBASE:OFFSET?", "0.000e+00\n"},
        Exchange{":CHANNEL1:PROBE?", "1X\n"}, Exchange{":CHANNEL1:SCALE?", "1.000e+00\n"},
        Exchange{":CHANNEL1:OFFSET?", "2.000e+00\n"}, Exchange{":CHANNEL2:COUPLING?", "DC\n"},
        Exchange{":CHANNEL1:BWLIMIT?", "0\n"}, Exchange{":CHANNEL1:DISPLAY?", "1\n"},
        Exchange{":CHANNEL3:DISPLAY?", "0\n"}, Exchange{":TRIGGER:MODE?", "EDGE\n"},
        Exchange{":TRIGGER:HOLDOFF?", "5.000e-07\n"}, Exchange{":TRIGGER:EDGE:SOURCE?", "CHANNEL1\n"},
        Exchange{":TRIGGER:EDGE:SLOPE?", "POSITIVE\n"}, Exchange{":TRIGGER:EDGE:SWEEP?", "AUTO\n"},
        Exchange{":TRIGGER:SENSITIVITY?", "4.000e-01\n"}, Exchange{":TRIGGER:PULSE:MODE?", "+LESS THAN\n"},
        Exchange{":TRIGGER:VIDEO:MODE?", "ALL LINES\n"}, Exchange{":TRIGGER:VIDEO:LINE?", "1\n"},
        Exchange{":TRIGGER:HFRE?", "0\n"}, Exchange{":TRIGGER:ALTERNATION:SOURCE?", "CHANNEL1CHANNEL2\n"},
        Exchange{":TRIGGER:ALTERNATION:TYPE?", "EDGE\n"},
        Exchange{":TRIGGER:PATTERN:PATTERN?", "0,0,EXT,NONE,POSITIVE\n"},
        Exchange{":ACQUIRE:MODE?", "RTIME\n"}, Exchange{":ACQUIRE:TYPE?", "NORMAL\n"},
        Exchange{":ACQUIRE:AVERAGES?", "16\n"}, Exchange{":DISPLAY:TYPE?", "VECTORS\n"},
        Exchange{":DISPLAY:PERSIST?", "0\n"}, Exchange{":DISPLAY:GRID?", "FULL\n"},
        Exchange{":MATH:DISPLAY?", "0\n"}, Exchange{":WAVEFORM:SYSMEMSIZE?", "4000\n"}));

class SetThenAskTest : public ::testing::TestWithParam<Exchange> {};

// The command is the query without "?" and with the value; the reply is
// what the next query must answer.
TEST_P(SetThenAskTest, NextQueryShowsTheNewValue)
{
    Instrument instrument;
    const QByteArray query = GetParam().query;
    const QByteArray header = query.left(query.indexOf('?'));
    const QList<QByteArray> sentAndAnswered = QByteArray(GetParam().reply).split('|');
    EXPECT_TRUE(instrument.handle(header + ' ' + sentAndAnswered.first()).isEmpty());
    EXPECT_EQ(instrument.handle(query), sentAndAnswered.last() + '\n');
}

// "value|reply" where the reply differs from the value sent.
INSTANTIATE_TEST_SUITE_P(
    Commands, SetThenAskTest,
    ::testing::Values(Exchange{":TIMEBASE:FORMAT?", "XY|X-Y"}, Exchange{":TIMEBASE:FORMAT?", "ROLL"},
                      Exchange{":TIMEBASE:SCALE?", "2e-3|2.000e-03"},
                      Exchange{":TIMEBASE:SCALE?", "500.0e-6|5.000e-04"},
                      Exchange{":TIMEBASE:OFFSET?", "0.001|1.000e-03"}, Exchange{":CHANNEL2:PROBE?", "10X"},
                      Exchange{":CHANNEL2:OFFSET?", "0.5|5.000e-01"}, Exchange{":CHANNEL2:COUPLING?", "GND"},
                      Exchange{":CHANNEL4:DISPLAY?", "ON|1"}, Exchange{":TRIGGER:MODE?", "ALTERNATION"},
                      Exchange{":TRIGGER:EDGE:SLOPE?", "NEGATIVE"}, Exchange{":TRIGGER:EDGE:SOURCE?", "EXT5"},
                      Exchange{":TRIGGER:EDGE:LEVEL?", "0.4|4.000e-01"},
                      Exchange{":TRIGGER:PULSE:MODE?", "-GREATERTHAN|-GREATER THAN"},
                      Exchange{":TRIGGER:PULSE:WIDTH?", "2e-6|2.000e-06"},
                      Exchange{":TRIGGER:VIDEO:MODE?", "ODDFIELD|ODD FIELD"},
                      Exchange{":TRIGGER:VIDEO:STANDARD?", "PALSECAM|PAL/SECAM"},
                      Exchange{":TRIGGER:DURATION:QUALIFIER?", "GREATERTHAN|GREATER THAN"},
                      Exchange{":TRIGGER:COUPLING?", "LF"},
                      Exchange{":TRIGGER:SENSITIVITY?", "0.40div|4.000e-01"},
                      Exchange{":TRIGGER:HOLDOFF?", "1e-3|1.000e-03"}, Exchange{":ACQUIRE:MODE?", "ETIME"},
                      Exchange{":ACQUIRE:TYPE?", "PEAKDETECT"}, Exchange{":ACQUIRE:AVERAGES?", "256"},
                      Exchange{":DISPLAY:GRID?", "HALF"}, Exchange{":MATH:DISPLAY?", "ON|1"},
                      Exchange{":FFT:DISPLAY?", "ON|1"}, Exchange{":RS232:BAUD?", "38400"}));

// Values the instrument refuses leave the setting as it was.
TEST_P(SetThenAskTest, RefusedValueChangesNothing)
{
    Instrument instrument;
    const QByteArray query = GetParam().query;
    const QByteArray before = instrument.handle(query);
    instrument.handle(query.left(query.indexOf('?')) + " NONSENSE");
    EXPECT_EQ(instrument.handle(query), before);
}

TEST(RefusedValueTest, OutOfRangeNumbersLeaveTheState)
{
    Instrument instrument;
    for (const char* command :
         {":CHANNEL1:SCALE 20", ":CHANNEL1:SCALE 0.001", ":TIMEBASE:SCALE 3e-3", ":TIMEBASE:SCALE 50",
          ":ACQUIRE:AVERAGES 3", ":TRIGGER:HOLDOFF 5", ":CHANNEL1:PROBE 3X", ":TRIGGER:VIDEO:LINE 600",
          ":TRIGGER:EDGE:LEVEL 100", ":RS232:BAUD 12345", ":TRIG:PATT:PATT 40,1,0"})
        instrument.handle(command);
    const SimState fresh = powerOnState();
    const SimState& state = instrument.state();
    EXPECT_EQ(state.channels[0].scale, fresh.channels[0].scale);
    EXPECT_EQ(state.channels[0].probe, fresh.channels[0].probe);
    EXPECT_EQ(state.timebase.main.scale, fresh.timebase.main.scale);
    EXPECT_EQ(state.acquire.averages, fresh.acquire.averages);
    EXPECT_EQ(state.trigger.holdoff, fresh.trigger.holdoff);
    EXPECT_EQ(state.trigger.video.line, fresh.trigger.video.line);
    EXPECT_EQ(state.trigger.edge.level, fresh.trigger.edge.level);
    EXPECT_EQ(state.baudRate, fresh.baudRate);
    EXPECT_EQ(state.trigger.pattern.value, fresh.trigger.pattern.value);
}

TEST(ChannelScaleTest, TakesInputVoltsAndAnswersDisplayedVolts)
{
    Instrument instrument;
    instrument.handle(":CHANNEL1:PROBE 10X");
    EXPECT_EQ(instrument.handle(":CHANNEL1:SCALE?"), "1.000e+01\n"); // the probe rescales the display
    instrument.handle(":CHANNEL1:SCALE 50.0MV");
    EXPECT_EQ(instrument.handle(":CHANNEL1:SCALE?"), "5.000e-01\n");
    // The offset stays where it was on the screen: two divisions up.
    EXPECT_EQ(instrument.handle(":CHANNEL1:OFFSET?"), "1.000e+00\n");
}

TEST(SpellingTest, MnemonicsIgnoreCaseAndTakeShortForms)
{
    Instrument instrument;
    instrument.handle(":trigger:mode pulse");
    instrument.handle(":TRIGGER:ALTERNATION:CURRentSOURce SOURceB");
    instrument.handle(":Chan2:Scal 0.5");
    EXPECT_EQ(instrument.handle(":TRIG:MODE?"), "PULSE\n");
    EXPECT_EQ(instrument.handle(":TRIGGER:ALTERNATION:CURRENTSOURCE?"), "SOURCEB\n");
    EXPECT_EQ(instrument.handle(":channel2:scale?"), "5.000e-01\n");
}

TEST(SpellingTest, OddCommandsKeptOnPurposeAreUnderstood)
{
    Instrument instrument;
    instrument.handle(":TRIGGERPULSE:LEVEL 0.8");
    instrument.handle(":TRIG:PATT:PATT 1,3,0");
    instrument.handle(":TRIGGER:PATTERN:PATTERN 0,4,1,2,0");
    EXPECT_EQ(instrument.handle(":TRIGGER:PULSE:LEVEL?"), "8.000e-01\n");
    EXPECT_EQ(instrument.handle(":TRIGGER:PATTERN:PATTERN?"), "0,4,EXT5,2,NEGATIVE\n");
    instrument.handle(":TRIGGER:PATTERN:PATTERN 1,17,0,4,1");
    EXPECT_EQ(instrument.handle(":TRIGGER:PATTERN:PATTERN?"), "1,17,EXT,EXT,POSITIVE\n");
}

TEST(PatternLevelTest, LevelsAreKeptPerInput)
{
    Instrument instrument;
    instrument.handle(":TRIGGER:PATTERN:LEVEL 0.5,CHANNEL2");
    instrument.handle(":TRIGGER:PATTERN:LEVEL EXT,-0.4");
    EXPECT_EQ(instrument.handle(":TRIGGER:PATTERN:LEVEL? CHANNEL2"), "5.000e-01\n");
    EXPECT_EQ(instrument.handle(":TRIGGER:PATTERN:LEVEL? EXT"), "-4.000e-01\n");
    EXPECT_EQ(instrument.handle(":TRIGGER:PATTERN:LEVEL? CHANNEL1"), "0.000e+00\n");
}

TEST(AlternationTest, EachSourceKeepsItsOwnWindowAndTrigger)
{
    Instrument instrument;
    instrument.handle(":TRIGGER:ALTERNATION:SOURCE CH2CH4");
    instrument.handle(":TRIGGER:ALTERNATION:TIMESCALE 1e-3,SOURCEB");
    instrument.handle(":TRIGGER:ALTERNATION:CURRENTSOURCE SOURCEB");
    instrument.handle(":TRIGGER:ALTERNATION:TYPE PULSE");
    instrument.handle(":TRIGGER:ALTERNATION:PULSE:TIME 3e-6");
    EXPECT_EQ(instrument.handle(":TRIGGER:ALTERNATION:SOURCE?"), "CHANNEL2CHANNEL4\n");
    EXPECT_EQ(instrument.handle(":TRIGGER:ALTERNATION:TIMESCALE? SOURCEB"), "1.000e-03\n");
    EXPECT_EQ(instrument.handle(":TRIGGER:ALTERNATION:TIMESCALE? SOURCEA"), "5.000e-04\n");
    EXPECT_EQ(instrument.handle(":TRIGGER:ALTERNATION:PULSE:TIME?"), "3.000e-06\n");
    instrument.handle(":TRIGGER:ALTERNATION:SOURCE CHANNEL2"); // a single channel selects its source
    EXPECT_EQ(instrument.handle(":TRIGGER:ALTERNATION:TYPE?"), "EDGE\n");
}

TEST(UnknownTest, UnknownQueriesGetNoReplyAndUnknownCommandsNoEffect)
{
    Instrument instrument;
    EXPECT_TRUE(instrument.handle(":NOSUCH:THING?").isEmpty());
    EXPECT_TRUE(instrument.handle(":CHANNEL5:SCALE?").isEmpty());
    EXPECT_TRUE(instrument.handle("").isEmpty());
    EXPECT_TRUE(instrument.handle(QByteArray("\xff\x00:::?", 6)).isEmpty());
    EXPECT_TRUE(instrument.handle(":CHANNEL1:SCALE").isEmpty());
    EXPECT_EQ(instrument.handle(":CHANNEL1:SCALE?"), "1.000e+00\n");
}

TEST(ResetTest, RstRestoresPowerOnValues)
{
    Instrument instrument;
    const QByteArray before = instrument.handle(":TRIGGER:MODE?") + instrument.handle(":CHANNEL1:SCALE?") +
                              instrument.handle(":TIMEBASE:FORMAT?") + instrument.handle(":TRIGGER:STATUS?");
    for (const char* command : {":TRIGGER:MODE SLOPE", ":CHANNEL1:SCALE 5", ":TIMEBASE:FORMAT ROLL", ":STOP"})
        instrument.handle(command);
    instrument.handle("*RST");
    const QByteArray after = instrument.handle(":TRIGGER:MODE?") + instrument.handle(":CHANNEL1:SCALE?") +
                             instrument.handle(":TIMEBASE:FORMAT?") + instrument.handle(":TRIGGER:STATUS?");
    EXPECT_EQ(after, before);
}

TEST(FormatTest, XyTurnsOnTheTwoChannelsItDrawsAndLeavesAlternation)
{
    Instrument instrument;
    instrument.handle(":TRIGGER:MODE ALTERNATION");
    instrument.handle(":CHANNEL3:DISPLAY ON");
    instrument.handle(":CHANNEL2:DISPLAY OFF");
    instrument.handle(":TIMEBASE:FORMAT XY");
    EXPECT_EQ(instrument.handle(":CHANNEL2:DISPLAY?"), "1\n");
    EXPECT_EQ(instrument.handle(":CHANNEL3:DISPLAY?"), "0\n");
    EXPECT_EQ(instrument.handle(":TRIGGER:MODE?"), "EDGE\n");
}

} // namespace
