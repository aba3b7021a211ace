// selvane-cli sheet on the hand-written sheet file: the JSON, a resave that
// comes back byte for byte, pictures, and a refused file's exit code.
#include "cliprocess.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString golden = QStringLiteral(SELVANE_TEST_DATA "/sheet/data/golden.kvs");

int sheetCli(const QStringList& arguments)
{
    return runCli(QStringList{"sheet"} + arguments).status;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(SheetCli, LoadsWritesJsonResavesAndDraws)
{
    QTemporaryDir dir;
    const QString json = dir.filePath("sheet.json"), first = dir.filePath("a.kvs"),
                  again = dir.filePath("b.kvs");
    ASSERT_EQ(sheetCli({golden, "--json", json, "--resave", first, "--pictures", dir.filePath("pictures")}),
              0);
    ASSERT_EQ(sheetCli({first, "--resave", again}), 0);
    EXPECT_EQ(contentOf(again), contentOf(first));

    const QJsonObject sheet = QJsonDocument::fromJson(contentOf(json)).object();
    EXPECT_EQ(sheet["name"].toString(), "Bench A");
    EXPECT_EQ(sheet["counts"].toObject()["frmRecordPlay"].toInt(), 1);
    const QJsonArray windows = sheet["windows"].toArray();
    ASSERT_EQ(windows.size(), 5);
    EXPECT_EQ(windows[1].toObject()["Judgements"].toArray()[0].toString(), "Pass");
    EXPECT_EQ(windows[2].toObject()["Count"].toInt(), 1);
    EXPECT_EQ(QDir(dir.filePath("pictures")).entryList(QDir::Files),
              QStringList({"memorywave_1.png", "record_1.png", "wave_1.png"}));
}

TEST(SheetCli, AnotherVersionIsRefused)
{
    QTemporaryDir dir;
    QFile file(dir.filePath("old.kvs"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contentOf(golden).replace("00.01.05.00.00", "00.01.06.00.00"));
    file.close();
    EXPECT_EQ(sheetCli({file.fileName()}), 3);
    EXPECT_EQ(sheetCli({dir.filePath("missing.kvs")}), 3);
}

} // namespace
