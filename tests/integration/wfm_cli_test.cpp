// selvane-cli wfm: the memory view's reader and CSV from the command line.
#include "cliprocess.h"
#include "stored/memorywavecsv.h"
#include "stored/wfmbytes.h"
#include "stored/wfmfile.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class WfmCliTest : public ::testing::Test {
  protected:
    CliRun run(QStringList arguments) const { return runCli(QStringList{QStringLiteral("wfm")} + arguments); }
    QString write(const char* name, const WfmBytes& file) const
    {
        const QString path = dir.filePath(QString::fromLatin1(name));
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(file.bytes);
        return path;
    }
    static WfmBytes good()
    {
        WfmBytes file;
        file.channel(0, true, 20'000, 5).channel(1, true).ramp(420, 600, 3).putFloat(180, 1e6f);
        return file;
    }
    QString path(const char* name) const { return dir.filePath(QString::fromLatin1(name)); }

    QTemporaryDir dir;
};

TEST_F(WfmCliTest, WritesTheSlotAsJsonTheCsvAndThePicture)
{
    const QString wfm = write("a.wfm", good());
    const CliRun r = run({wfm, "--json", path("a.json"), "--csv", path("a.csv"), "--picture", path("a.png")});
    EXPECT_EQ(r.status, 0) << qPrintable(r.err);
    QFile json(path("a.json"));
    ASSERT_TRUE(json.open(QIODevice::ReadOnly));
    const QJsonObject slot = QJsonDocument::fromJson(json.readAll()).object();
    EXPECT_TRUE(slot["accepted"].toBool());
    EXPECT_EQ(slot["message"].toString(), QString());
    EXPECT_EQ(slot["ModelBandwidthCode"].toInt(), 4);
    EXPECT_EQ(slot["TriggerMode"].toString(), QStringLiteral("EDGE"));
    EXPECT_EQ(slot["SampleCount"].toInt(), 600);
    const QJsonObject ch1 = slot["channels"].toArray()[0].toObject();
    EXPECT_EQ(ch1["ChanVoltDiv"].toDouble(), 0.02);
    EXPECT_EQ(ch1["ChanOffset"].toDouble(), 0.004);
    EXPECT_EQ(ch1["Samples"].toArray().size(), 600);
    EXPECT_EQ(ch1["Samples"].toArray()[1].toInt(), 29);
    EXPECT_TRUE(slot["channels"].toArray()[2].toObject()["Samples"].toArray().isEmpty());

    MemoryWaveSlot local;
    int code = 0;
    LoadMemoryWaveBytes(good().bytes, local, code);
    QFile csv(path("a.csv"));
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    EXPECT_EQ(csv.readAll(), MemoryWaveCsv(local));
    EXPECT_EQ(QImage(path("a.png")).size(), QSize(350, 250));
}

TEST_F(WfmCliTest, ARefusedFileExitsWith3AndSaysWhy)
{
    WfmBytes bad = good();
    bad.model("KV7204BX");
    const CliRun r = run({write("bad.wfm", bad), "--json", path("bad.json"), "--language", "chinese"});
    EXPECT_EQ(r.status, 3);
    EXPECT_TRUE(r.err.contains(QStringLiteral("文件操作失败！"))) << qPrintable(r.err);
    QFile json(path("bad.json"));
    ASSERT_TRUE(json.open(QIODevice::ReadOnly));
    const QJsonObject slot = QJsonDocument::fromJson(json.readAll()).object();
    EXPECT_FALSE(slot["accepted"].toBool());
    EXPECT_FALSE(slot["HasData"].toBool());
}

TEST_F(WfmCliTest, UsageErrorsExitWith2)
{
    const QString wfm = write("a.wfm", good());
    EXPECT_EQ(run({}).status, 2);
    EXPECT_EQ(run({wfm, wfm}).status, 2);
    EXPECT_EQ(run({wfm, "--language", "latin"}).status, 2);
    EXPECT_EQ(run({wfm, "--csv-dir", path("out"), "--json", path("x.json")}).status, 2);
}

TEST_F(WfmCliTest, ABatchConvertsEveryFileAndReportsEachRefusedOne)
{
    WfmBytes bad = good();
    bad.put<uint16_t>(0, 0x1234);
    WfmBytes onlyCh3;
    onlyCh3.channel(2, true);
    const QStringList files = {write("one.wfm", good()), write("bad.wfm", bad), write("three.wfm", onlyCh3),
                               write("four.wfm", good())};
    const CliRun r = run(files + QStringList{"--csv-dir", path("out")});
    EXPECT_EQ(r.status, 3);
    EXPECT_TRUE(r.err.contains(QStringLiteral("bad.wfm: The file format is error!"))) << qPrintable(r.err);
    EXPECT_TRUE(r.err.contains(QStringLiteral("three.wfm: Invalid waveform data!")));
    EXPECT_EQ(QDir(path("out")).entryList(QDir::Files), (QStringList{"four.csv", "one.csv"}));
}

} // namespace
