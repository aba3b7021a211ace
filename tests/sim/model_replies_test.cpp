// Replies of the simulated instrument in the forms the program's download
// and editors read, and how commands and front-panel keys change (or refuse
// to change) them.
#include "model/instrument.h"

#include <QFile>
#include <gtest/gtest.h>
#include <memory>

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

// Every session of data/sessions.txt, each on a fresh instrument.
TEST(Sessions, EveryQueryGetsItsReply)
{
    QFile file(QStringLiteral(SELVANE_TEST_DATA "/sim/data/sessions.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    std::unique_ptr<Instrument> instrument;
    QByteArray session;
    int sessions = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.isEmpty() || line.startsWith('#')) continue;
        if (line.startsWith("== ")) {
            session = line.mid(3);
            instrument = std::make_unique<Instrument>();
            ++sessions;
            continue;
        }
        ASSERT_TRUE(instrument) << "a line before the first session";
        SCOPED_TRACE((session + ": " + line).constData());
        const qsizetype arrow = line.indexOf("=>");
        if (arrow < 0) {
            instrument->handle(line);
            continue;
        }
        const QByteArray reply = line.mid(arrow + 2).trimmed();
        EXPECT_EQ(instrument->handle(line.left(arrow).trimmed()),
                  reply.isEmpty() ? QByteArray() : reply + '\n');
    }
    EXPECT_EQ(sessions, 12);
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
