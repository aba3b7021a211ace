// Upload against the simulator: the commands of every trigger type in their
// order, the pauses the instrument needs, the record surviving a round trip, and
// selvane-cli upload's exit codes.

#include "cliprocess.h"
#include "reading_simlink.h"

#include "acquire/operation.h"
#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "controller/download.h"
#include "controller/upload.h"
#include "text/language.h"
#include "text/treewords.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cstdio>

namespace {

QStringList expectedLines(const char* name)
{
    QFile file(QStringLiteral(SELVANE_TEST_DATA "/integration/data/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << name;
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

class UploadTest : public SimReadingTest {
  protected:
    // Uploads CtrlData and returns what the simulator logged from the frame's start on.
    QList<QPair<qint64, QString>> upload()
    {
        const QString last = QStringLiteral(":DISPLAY:GRID ") + lastGrid();
        const QStringList logged = link->loggedCommands();
        BeforeUpload();
        InstallUploadOperation();
        RunReadingFrame({OperationUpload});
        EXPECT_TRUE(link->waitForLogged(last, int(logged.count(last)) + 1));
        const qsizetype before = logged.size();
        return link->loggedEntries().mid(before);
    }
    QStringList uploadCommands()
    {
        QStringList commands;
        for (const auto& entry : upload())
            commands << entry.second;
        return commands;
    }
    static QString lastGrid() { return CtrlData.DisplayGrid == ValueWord("HALF") ? "HALF" : "FULL"; }
    // The commands between the trigger's holdoff and the acquire tail.
    static QStringList triggerBlock(const QStringList& commands)
    {
        const qsizetype from = commands.indexOf(QRegularExpression("^:TRIGGER:HOLDOFF .*")) + 1;
        const qsizetype to = commands.indexOf(QRegularExpression("^:ACQUIRE:MODE .*"));
        return commands.mid(from, to - from);
    }
};

TEST_F(UploadTest, FreshFileSendsEverySettingWithTheMandatedPauses)
{
    ASSERT_TRUE(startSim());
    ASSERT_TRUE(connectOverSocket());
    const auto entries = upload();
    QStringList commands;
    for (const auto& entry : entries)
        commands << entry.second;
    EXPECT_EQ(commands.join('\n').toStdString(), expectedLines("upload_new.txt").join('\n').toStdString());

    // Each command is followed by 100 ms; on top come 5000 after the format, 1000
    // after the scale and 100 after each channel's six. Arrival times jitter by a
    // few milliseconds, so the waits are checked as they add up.
    qint64 mandatedUs = 0;
    for (qsizetype i = 1; i < entries.size(); ++i) {
        const QString& previous = entries[i - 1].second;
        qint64 wait = previous.endsWith('?') ? 0 : 100000;
        if (previous.startsWith(":TIMEBASE:FORMAT ")) wait += 5000000;
        if (previous.startsWith(":TIMEBASE:SCALE ")) wait += 1000000;
        if (previous.contains(":DISPLAY ")) wait += 100000;
        mandatedUs += wait;
        EXPECT_GE(entries[i].first - entries.first().first, mandatedUs - 10000)
            << entries[i].second.toStdString();
    }
    const qint64 totalUs = entries.last().first - entries.first().first;
    EXPECT_LE(double(totalUs), 1.05 * double(mandatedUs));
    // The measurement the lead asks for: total upload time against its mandated waits.
    std::printf("upload %.3f s, mandated waits %.3f s, ratio %.4f\n", double(totalUs) / 1e6,
                double(mandatedUs) / 1e6, double(totalUs) / double(mandatedUs));
}

TEST_F(UploadTest, EachTriggerTypeSendsItsOwnBlock)
{
    platform->realSleep = false;
    ASSERT_TRUE(startSim());
    ASSERT_TRUE(connectOverSocket());
    const QStringList expected = expectedLines("upload_triggers.txt");
    for (const char* type : {"EDGE", "PULSE", "VIDEO", "PATTERN", "ALTERNATIVE", "SLOPE", "DURATION"}) {
        ResetCtrlState();
        CtrlData.TrigMethod = ValueWord(QString::fromLatin1(type));
        CtrlData.PulseWidth = QStringLiteral(">1.0us"); // a bound is sent as 0
        CtrlData.PatternCode[2] = ValueWord("H");
        CtrlData.PatternEdge[2] = 1;
        CtrlData.AltChannel = QStringLiteral("CH3CH4");
        CtrlData.AltTypeB = ValueWord("VIDEO");
        const QStringList block = triggerBlock(uploadCommands());
        const qsizetype start = expected.indexOf(QStringLiteral("# ") + type);
        const qsizetype end = expected.indexOf(QRegularExpression("^# .*"), start + 1);
        EXPECT_EQ(
            block.join('\n').toStdString(),
            expected.mid(start + 1, (end < 0 ? expected.size() : end) - start - 1).join('\n').toStdString())
            << type;
    }
}

TEST_F(UploadTest, ChineseFileReadInChineseSendsTheSameCommands)
{
    platform->realSleep = false;
    ASSERT_TRUE(startSim());
    ASSERT_TRUE(connectOverSocket());
    QTemporaryDir dir;
    Language = LanguageChinese;
    ResetCtrlState();
    ASSERT_TRUE(WriteCtrlFile(dir.filePath("chinese.rmt")));
    CtrlData = CtrlRecord{};
    ASSERT_TRUE(ReadCtrlFile(dir.filePath("chinese.rmt")));
    EXPECT_EQ(uploadCommands().join('\n').toStdString(),
              expectedLines("upload_new.txt").join('\n').toStdString());
}

TEST_F(UploadTest, DownloadAfterUploadGivesBackWhatTheInstrumentKeeps)
{
    platform->realSleep = false;
    ASSERT_TRUE(startSim());
    ASSERT_TRUE(connectOverSocket());
    CtrlRecord& r = CtrlData;
    r.RunStop = ValueWord("STOP");
    r.TimeDiv = QStringLiteral("2.000ms");
    r.TimeDelay = QStringLiteral("1.000ms");
    r.ChProbe[2] = QStringLiteral("1X");
    r.ChVoltDiv[2] = QStringLiteral("500mV");
    r.ChOffset[2] = QStringLiteral("-1.00V");
    r.ChDisplay[3] = ValueWord("ON");
    r.ChCoupling[3] = ValueWord("AC");
    r.ChBwLimit[4] = ValueWord("ON");
    r.TrigMethod = ValueWord("PULSE");
    r.PulseMode = ValueWord("-Greater Than");
    r.PulseWidth = QStringLiteral("2.00us");
    r.PulseLevel = QStringLiteral("1.00div"); // sent as ":TRIGGERPULSE:LEVEL 10" against CH1's 10 V
    r.PulseSensitivity = QStringLiteral("0.30div");
    r.Holdoff = QStringLiteral("1.00ms");
    r.AcqType = ValueWord("AVERAGE");
    r.AcqAverages = QStringLiteral("64");
    r.DisplayGrid = ValueWord("HALF");
    r.LaThreshold = QStringLiteral("2.50V"); // kept by the file, never sent
    const CtrlRecord sent = r;
    const QStringList commands = uploadCommands();
    EXPECT_TRUE(commands.filter(":LA").isEmpty());
    EXPECT_TRUE(commands.contains(":CHANNEL2:OFFSET  -1"));

    InstallDownloadOperation();
    RunReadingFrame({OperationDownload});
    const std::pair<QString, QString> fields[] = {
        {r.RunStop, sent.RunStop},           {r.TimeDiv, sent.TimeDiv},
        {r.TimeDelay, sent.TimeDelay},       {r.ChProbe[2], sent.ChProbe[2]},
        {r.ChVoltDiv[2], "500mV"},           {r.ChOffset[2], sent.ChOffset[2]},
        {r.ChDisplay[3], sent.ChDisplay[3]}, {r.ChCoupling[3], sent.ChCoupling[3]},
        {r.ChBwLimit[4], sent.ChBwLimit[4]}, {r.TrigMethod, sent.TrigMethod},
        {r.PulseMode, sent.PulseMode},       {r.PulseWidth, sent.PulseWidth},
        {r.Holdoff, sent.Holdoff},           {r.AcqType, sent.AcqType},
        {r.AcqAverages, sent.AcqAverages},   {r.DisplayGrid, sent.DisplayGrid},
        {r.LaThreshold, sent.LaThreshold},
    };
    for (const auto& [got, wanted] : fields)
        EXPECT_EQ(got, wanted);
}

TEST_F(UploadTest, CliSendsAFileAndRefusesAForeignOne)
{
    ASSERT_TRUE(startSim());
    QTemporaryDir dir;
    const QString good = dir.filePath("new.rmt"), bad = dir.filePath("bad.rmt");
    ResetCtrlState();
    CtrlData.TimeDiv = QStringLiteral("5.000ms");
    ASSERT_TRUE(WriteCtrlFile(good));
    QFile foreign(bad);
    ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
    foreign.write("\"Other,Thing\"\r\n");
    foreign.close();

    const auto run = [this](const QStringList& head) {
        QStringList arguments = head;
        for (const QString& resource : socketResources())
            arguments << "--resource" << resource;
        return runCli(arguments);
    };
    const CliRun refused = run({"upload", "--in", bad});
    EXPECT_EQ(refused.status, 3);
    EXPECT_TRUE(refused.err.contains("File Format is Invaild !")) << refused.err.toStdString();
    EXPECT_TRUE(link->loggedCommands().filter(QRegularExpression("^:TIMEBASE:SCALE ")).isEmpty());

    EXPECT_EQ(run({"upload", "--in", good}).status, 0);
    EXPECT_TRUE(link->loggedCommands().contains(":TIMEBASE:SCALE 0.005"));
    EXPECT_EQ(run({"upload"}).status, 2);
}

} // namespace
