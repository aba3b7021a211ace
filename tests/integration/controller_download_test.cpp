// Download against the simulator: the queries in their order, the record
// agreeing with the instrument, and a silent or lost link that still lets the
// transfer run to its end. selvane-cli download writes the same record.

#include "reading_simlink.h"

#include "acquire/operation.h"
#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "controller/download.h"
#include "text/keywords.h"
#include "text/valuetext.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

class DownloadTest : public SimReadingTest {
  protected:
    void download()
    {
        InstallDownloadOperation();
        RunReadingFrame({OperationDownload});
        AfterDownload();
    }
    // What the simulator logged from the first query of the download on.
    QStringList downloadCommands() const
    {
        EXPECT_TRUE(link->waitForLogged(":DISPLAY:GRID?", 1));
        const QStringList all = link->loggedCommands();
        return all.mid(all.lastIndexOf(":TIMEBASE:FORMAT?") - 1, 120);
    }
};

TEST_F(DownloadTest, QueriesRunInOrderAndTheRecordAgreesWithTheInstrument)
{
    ASSERT_TRUE(startSim());
    ASSERT_TRUE(connectOverSocket());
    download();

    QFile order(QStringLiteral(SELVANE_TEST_DATA "/integration/data/download_order.txt"));
    ASSERT_TRUE(order.open(QIODevice::ReadOnly | QIODevice::Text));
    const QStringList expected = QString::fromUtf8(order.readAll()).split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(downloadCommands().join('\n').toStdString(), expected.join('\n').toStdString());

    const std::pair<QString, QString> fields[] = {
        {CtrlData.TimeDiv, TimeText4(QString::fromUtf8(askText(":TIMEBASE:SCALE?")))},
        {CtrlData.ChOffset[2], VoltText3(QString::fromUtf8(askText(":CHANNEL2:OFFSET?")))},
        {CtrlData.ChProbe[1], QString::fromUtf8(askText(":CHANNEL1:PROBE?"))},
        {CtrlData.ChDisplay[2], "ON"},
        {CtrlData.TrigMethod, "EDGE"},
        {CtrlData.AltChannel, "CH1CH2"},
        {CtrlData.ChInvert[1], "OFF"},
    };
    for (const auto& [value, expectedValue] : fields)
        EXPECT_EQ(value, expectedValue);
    EXPECT_TRUE(CtrlDirty);
}

TEST_F(DownloadTest, SilentOrLostLinkRunsToTheEndWithEmptyReplies)
{
    // Over the serial line a silence costs four seconds, not a network time-out.
    ASSERT_TRUE(startSim({"--silent", ":TRIGGER:ALTERNATION:TYPE?"}));
    ASSERT_TRUE(connectOverSerial());
    CtrlData.SlopeTime = QStringLiteral("2.00us");
    download();
    EXPECT_EQ(CtrlData.AltTypeA, "DURATION");
    EXPECT_EQ(CtrlData.AltTypeB, "DURATION");
    EXPECT_EQ(CtrlData.SlopeTime, "2.00us") << "the slope fields are not asked for";

    // The link drops in the middle of the channel rows.
    ASSERT_TRUE(startSim({"--drop-after", "20"}));
    ASSERT_TRUE(connectOverSocket());
    download();
    EXPECT_TRUE(OperationDone);
    EXPECT_EQ(CtrlData.DisplayGrid, GridFromReply(QString()));
    EXPECT_EQ(CtrlData.AcqType, AcquisitionFromReply(QString()));
    EXPECT_EQ(CtrlData.TrigMethod, TriggerTypeFromReply(QString()));
    EXPECT_EQ(CtrlData.AltChannel, "CH1CH2");
}

TEST_F(DownloadTest, CliWritesTheDownloadedRecordInTheChosenLanguage)
{
    ASSERT_TRUE(startSim());
    QTemporaryDir dir;
    const QString out = dir.filePath("scope.rmt");
    QStringList arguments{"download", "--out", out, "--language", "chinese"};
    for (const QString& resource : socketResources())
        arguments << "--resource" << resource;
    QProcess cli;
    cli.start(QStringLiteral(SELVANE_CLI_PATH), arguments);
    ASSERT_TRUE(cli.waitForFinished(20000));
    EXPECT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().toStdString();
    ASSERT_TRUE(ReadCtrlFile(out));
    EXPECT_EQ(CtrlData.TrigMethod, "边沿触发");
    EXPECT_EQ(CtrlData.RunStop, "运行");

    cli.start(QStringLiteral(SELVANE_CLI_PATH), {"download", "--out", out});
    ASSERT_TRUE(cli.waitForFinished(20000));
    EXPECT_EQ(cli.exitCode(), 2);
}

} // namespace
