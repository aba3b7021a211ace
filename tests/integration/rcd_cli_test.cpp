// Record files the simulator writes, read by the program's reader and by
// selvane-cli rcd: fields, frames, pictures and exit codes.
#include "cliprocess.h"
#include "platform/testplatform.h"
#include "state/programstate.h"
#include "stored/rcdbuilder.h"
#include "stored/rcdfile.h"
#include "stored/recordplaydraw.h"
#include "stored/recordslot.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class RcdFiles : public ::testing::Test {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override { ResetProgramState(); }

    QString simFile(const QStringList& options)
    {
        const QString path = dir.filePath("sim.rcd");
        EXPECT_EQ(
            runProgram(QStringLiteral(SELVANE_SIM_PATH), QStringList{"write-rcd", path} + options).status, 0);
        return path;
    }
    int cli(const QStringList& arguments)
    {
        const CliRun run = runCli(QStringList{"rcd"} + arguments);
        errors = run.err;
        return run.status;
    }

    QTemporaryDir dir;
    QString errors;
    ScopedTestPlatform test;
};

TEST_F(RcdFiles, TheSimulatorsFileReadsAsItWasWritten)
{
    const QString path = simFile({"--frames", "12", "--second-block"});
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    ASSERT_EQ(LoadRecordFile(path, 0), RecordLoad::Loaded);
    const RecordSlot& slot = RecordSlots[0];
    EXPECT_EQ(slot.SourceName, "CH1");
    EXPECT_TRUE(slot.HasSecond);
    EXPECT_EQ(slot.LastFrame, 12);
    EXPECT_EQ(slot.VoltText, "1.00V");
    for (int i = 0; i < 12 * 600; ++i) {
        ASSERT_EQ(slot.Samples[size_t(i)], quint8(bytes[128 + i])) << i;
        ASSERT_EQ(slot.SecondSamples[size_t(i)], quint8(bytes[128 + RecordSecondStart + i])) << i;
    }
    EXPECT_TRUE(test->boxes.isEmpty());
}

TEST_F(RcdFiles, TheCommandLineWritesFieldsOneFrameAndEveryFrame)
{
    const QString path = simFile({"--frames", "6"});
    const QString json = dir.filePath("r.json"), picture = dir.filePath("f3.png"),
                  frames = dir.filePath("frames");
    ASSERT_EQ(cli({path, "--json", json, "--frame", "3", "--picture", picture, "--frames-dir", frames}), 0)
        << errors.toStdString();

    QFile jsonFile(json);
    ASSERT_TRUE(jsonFile.open(QIODevice::ReadOnly));
    const QJsonObject fields = QJsonDocument::fromJson(jsonFile.readAll()).object();
    EXPECT_TRUE(fields["accepted"].toBool());
    EXPECT_EQ(fields["message"].toString(), "");
    EXPECT_EQ(fields["L"].toInt(), 6 * 600);
    EXPECT_EQ(fields["SourceName"].toString(), "CH1");
    EXPECT_FALSE(fields["HasSecond"].toBool());
    EXPECT_EQ(fields["LastFrame"].toInt(), 6);
    EXPECT_EQ(fields["Samples"].toArray().size(), 6 * 600);
    EXPECT_FALSE(fields.contains("SecondSamples"));

    ASSERT_EQ(LoadRecordFile(path, 0), RecordLoad::Loaded);
    RecordSlots[0].CurrentFrame = 3;
    const QImage drawn = RecordFrameImage(RecordSlots[0]).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(QImage(picture).convertToFormat(QImage::Format_RGB32), drawn)
        << "frame 3 as the window draws it";
    const QStringList written = QDir(frames).entryList({"*.png"}, QDir::Files, QDir::Name);
    EXPECT_EQ(written.size(), 6);
    EXPECT_EQ(written.value(0), "frame_0001.png");
    EXPECT_EQ(QImage(QDir(frames).filePath("frame_0003.png")).convertToFormat(QImage::Format_RGB32), drawn);
}

TEST_F(RcdFiles, ExitCodesForRefusedFilesAndUsage)
{
    RcdBuilder bad;
    bad.u16(0, 0x1234);
    const QString path = dir.filePath("bad.rcd"), json = dir.filePath("bad.json");
    ASSERT_TRUE(bad.save(path));
    EXPECT_EQ(cli({path, "--json", json, "--language", "chinese"}), 3);
    QFile jsonFile(json);
    ASSERT_TRUE(jsonFile.open(QIODevice::ReadOnly));
    const QJsonObject fields = QJsonDocument::fromJson(jsonFile.readAll()).object();
    EXPECT_FALSE(fields["accepted"].toBool());
    EXPECT_EQ(fields["message"].toString(), QStringLiteral("文件格式错误！"));

    EXPECT_EQ(cli({}), 2);
    EXPECT_EQ(cli({path, "--frame", "0", "--picture", dir.filePath("x.png")}), 2);
    EXPECT_EQ(cli({path, "--frame", "2"}), 2) << "--frame without --picture";
}

} // namespace
