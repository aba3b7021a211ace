// Download against the simulator: the queries in their order and the record
// agreeing with the instrument; selvane-cli download writes the same record.
// A silent or lost link during the download is a row of fault_matrix_test.

#include "cliprocess.h"
#include "reading_simlink.h"

#include "acquire/operation.h"
#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "controller/download.h"
#include "text/valuetext.h"

#include <QFile>
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

TEST_F(DownloadTest, CliWritesTheDownloadedRecordInTheChosenLanguage)
{
    ASSERT_TRUE(startSim());
    QTemporaryDir dir;
    const QString out = dir.filePath("scope.rmt");
    QStringList arguments{"download", "--out", out, "--language", "chinese"};
    for (const QString& resource : socketResources())
        arguments << "--resource" << resource;
    const CliRun run = runCli(arguments);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    ASSERT_TRUE(ReadCtrlFile(out));
    EXPECT_EQ(CtrlData.TrigMethod, "边沿触发");
    EXPECT_EQ(CtrlData.RunStop, "运行");

    EXPECT_EQ(runCli({"download", "--out", out}).status, 2);
}

} // namespace
