// The measure reading against kv7200b-sim: the commands in their order with
// the instrument's pauses, the values in their slots, a channel that is off,
// the alternate-trigger legend, and selvane-cli measure's file and exit status.
#include "cliprocess.h"
#include "reading_simlink.h"

#include "acquire/operation.h"
#include "analysis/readmeasure.h"
#include "link/linkcommands.h"
#include "text/valuetext.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr int FrequencySlot = 7;

class MeasureReading : public SimReadingTest {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(startSim());
        ASSERT_TRUE(connectOverSocket());
        send(":STOP");
        InstallMeasureOperations();
    }

    // Reads channel and returns the commands the reading sent.
    QStringList read(int channel)
    {
        const qsizetype before = link->loggedCommands().size();
        platform->clearRecords();
        RunReadingFrame({OperationMeasureCH1 + channel - 1});
        TakeMeasureReading(record, channel);
        const QStringList all = link->loggedCommands();
        return all.mid(before);
    }

    MeasureRecord record;
};

QStringList linesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll()).split(QStringLiteral("\r\n"));
}

TEST_F(MeasureReading, AsksInItsOrderWithThePauses)
{
    const QStringList expected =
        linesOf(QStringLiteral(SELVANE_TEST_DATA "/integration/data/measure_commands.txt"));
    ASSERT_EQ(expected.size(), 25);
    EXPECT_EQ(read(1), expected.mid(0, 24));
    QList<int> pauses(19, 100);
    pauses.prepend(200);
    pauses.append(200);
    EXPECT_EQ(platform->sleeps, pauses)
        << "200 ms first, 100 ms after the source and each reply, 200 ms at the end";

    for (const MeasureItem& item : record.Items)
        EXPECT_FALSE(item.Value.isEmpty());
    // CH1 is the 1 kHz sine.
    EXPECT_NEAR(ParseFreqText(record.Items[FrequencySlot].Value), 1000, 10)
        << record.Items[FrequencySlot].Value.toStdString();
    EXPECT_TRUE(ValueValid);
    EXPECT_TRUE(record.Legend.startsWith("CH1 1.00V  500.0us ")) << record.Legend.toStdString();
    EXPECT_TRUE(record.Legend.contains("Sa  [Date:")) << record.Legend.toStdString();
    EXPECT_TRUE(record.HasData);
}

TEST_F(MeasureReading, AChannelThatIsOffHasNoValues)
{
    read(3);
    for (const MeasureItem& item : record.Items)
        EXPECT_EQ(item.Value, NoMeasureText);
}

TEST_F(MeasureReading, AlternateTriggerTakesTheChannelsTimeBase)
{
    WriteCmd(":TRIGGER:MODE ALTERNATION");
    send(":STOP");
    const QStringList commands = read(2);
    const qsizetype source = commands.indexOf(":TRIGGER:ALTERNATION:SOURCE CHANNEL2");
    ASSERT_GE(source, 0);
    EXPECT_EQ(commands.value(source + 1), ":TRIGGER:ALTERNATION:TIMESCALE?");
    EXPECT_FALSE(commands.contains(":TIMEBASE:SCALE?"));
    EXPECT_TRUE(record.Legend.startsWith("CH2 ")) << record.Legend.toStdString();
}

class MeasureCli : public SimReadingTest {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(startSim());
        send(":STOP");
    }
    int runCli(const QStringList& arguments)
    {
        QStringList all = QStringList{"measure", "--out", out} + arguments;
        for (const QString& resource : socketResources())
            all << "--resource" << resource;
        return ::runCli(all).status;
    }
    QTemporaryDir dir;
    QString out = dir.filePath("measure.txt");
};

struct CliCase {
    const char* name;
    QStringList arguments;
    int status;
};

TEST_F(MeasureCli, ExitStatusTellsTheJudgement)
{
    const CliCase cases[] = {
        {"all pass", {"--channel", "1", "--limit", "Frequency=990:1010", "--limit", "Duty+=40:60"}, 0},
        {"one fails", {"--channel", "1", "--limit", "Vpp=0:1e-3", "--limit", "Frequency=0:1e9"}, 1},
        {"no value fails", {"--channel", "3", "--limit", "Rise Time=0:1"}, 1},
        {"nothing limited", {"--channel", "2"}, 0},
        {"unknown item", {"--channel", "1", "--limit", "Vp=0:1"}, 2},
        {"bad channel", {"--channel", "5"}, 2},
        {"bad language", {"--channel", "1", "--language", "french"}, 2},
    };
    for (const CliCase& c : cases)
        EXPECT_EQ(runCli(c.arguments), c.status) << c.name;
}

TEST_F(MeasureCli, WritesTheExportInItsOrder)
{
    ASSERT_EQ(runCli({"--channel", "1", "--limit", "Vpp=0:1e-3", "--language", "chinese"}), 1);
    const QStringList lines = linesOf(out);
    ASSERT_EQ(lines.size(), 26);
    EXPECT_EQ(lines[0], "Selvane -[Measure]");
    EXPECT_TRUE(lines[5].startsWith("CH1 "));
    QStringList names;
    for (int n = 7; n < 25; ++n)
        names << lines[n].section('\t', 0, 0);
    EXPECT_EQ(names, QStringList({"Vpp", "Vmax", "Vmin", "Vavg", "Vamp", "Vtop", "Vbase", "Vrms", "Vover",
                                  "Vpre", "Frequency", "Rise Time", "Fall Time", "Period", "Pulse Width+",
                                  "Pulse Width-", "Duty+", "Duty-"}));
    EXPECT_TRUE(lines[7].endsWith(QStringLiteral("\t失败 [高于上限]"))) << lines[7].toStdString();
    EXPECT_TRUE(lines[8].endsWith('\t')) << "items without limits have no result";
}

} // namespace
