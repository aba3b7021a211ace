// Replies of the simulated instrument in the forms the program's download
// and editors read, and how commands change (or refuse to change) them.
#include "instrument.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

// Every line of data/replies.txt: the power-on replies, and each setting taking
// a value, showing it in the next query and refusing nonsense.
TEST(ReplyTable, PowerOnRepliesAndSettings)
{
    QFile table(QStringLiteral(SELVANE_TEST_DATA "/sim/data/replies.txt"));
    ASSERT_TRUE(table.open(QIODevice::ReadOnly | QIODevice::Text));
    int rows = 0;
    while (!table.atEnd()) {
        const QByteArray line = table.readLine().chopped(1);
        if (line.isEmpty() || line.startsWith('#')) continue;
        SCOPED_TRACE(line.constData());
        ++rows;
        const qsizetype afterKind = line.indexOf(' ');
        const qsizetype afterQuery = line.indexOf(' ', afterKind + 1);
        const QByteArray query = line.mid(afterKind + 1, afterQuery - afterKind - 1);
        const QByteArray rest = line.mid(afterQuery + 1);
        Instrument instrument;
        if (line.startsWith("on ")) {
            EXPECT_EQ(instrument.handle(query), rest + '\n');
            continue;
        }
        const QByteArray header = query.left(query.indexOf('?'));
        const QByteArray before = instrument.handle(query);
        instrument.handle(header + " NONSENSE");
        EXPECT_EQ(instrument.handle(query), before) << "a refused value changes nothing";
        const QList<QByteArray> sentAndAnswered = rest.split('|');
        EXPECT_TRUE(instrument.handle(header + ' ' + sentAndAnswered.first()).isEmpty());
        EXPECT_EQ(instrument.handle(query), sentAndAnswered.last() + '\n');
    }
    EXPECT_EQ(rows, 61);
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
