// Control files: the golden file reads into the fields it names and writes back
// byte for byte; the reader's quirks; refusals leave the record alone.

#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "platform/testplatform.h"
#include "support/freshstate.h"
#include "text/language.h"
#include "text/messages.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString golden = QStringLiteral(SELVANE_TEST_DATA "/controller/data/golden.rmt");

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// The golden file with line (from 1) replaced.
QByteArray goldenWithLine(int line, const QByteArray& text)
{
    QList<QByteArray> lines = bytesOf(golden).split('\n');
    lines[line - 1] = text + '\r';
    return lines.join('\n');
}

class CtrlFileTest : public FreshStateTest {
  protected:
    QString path(const char* name) const { return dir.filePath(QString::fromLatin1(name)); }

    ScopedTestPlatform platform;
    QTemporaryDir dir;
};

TEST_F(CtrlFileTest, GoldenFileReadsIntoItsFieldsAndWritesBackByteForByte)
{
    ASSERT_TRUE(ReadCtrlFile(golden));
    const CtrlRecord& r = CtrlData;
    const std::pair<QString, QString> fields[] = {
        {r.RunStop, "RUN"},        {r.ChProbe[1], "1X"},
        {r.ChOffset[2], "-2.00V"}, {r.ChDisplay[2], "ON"},
        {r.Spare1, "spare one"},   {r.TimeDiv, "500.0us"},
        {r.MemorySize, "8000"},    {r.TimeFormat, "Y-T"},
        {r.TrigMethod, "PATTERN"}, {r.EdgeSource, "CHANNEL1"},
        {r.PulseWidth, "1.00us"},  {r.AltSourceB, "CH4"},
        {r.AltChannel, "CH1CH2"},  {r.PatternLevel[4], "-1.25div"},
    };
    for (const auto& [value, expected] : fields)
        EXPECT_EQ(value, expected);
    EXPECT_EQ(r.PatternEdge[0], 1);
    EXPECT_EQ(r.PatternEdge[2], 3);
    EXPECT_TRUE(r.PatternExtIsDiv5);

    ASSERT_TRUE(WriteCtrlFile(path("back.rmt")));
    EXPECT_EQ(bytesOf(path("back.rmt")), bytesOf(golden));
    // A text file is the very same content.
    ASSERT_TRUE(WriteCtrlFile(path("back.txt")));
    EXPECT_EQ(bytesOf(path("back.txt")), bytesOf(golden));
}

TEST_F(CtrlFileTest, ReaderQuirks)
{
    struct Case {
        const char* what;
        int line;
        QByteArray text;
        QString CtrlRecord::*field;
        QString expected;
    };
    const Case cases[] = {
        // The pulse trigger's HF item lands in the edge trigger's field.
        {"item 91 into EdgeHf", 91, "\"ON\"", &CtrlRecord::EdgeHf, "ON"},
        {"item 91 leaves PulseHf", 91, "\"ON\"", &CtrlRecord::PulseHf, "OFF"},
        {"a quote ends the item", 69, "\"1.0\"00us\"", &CtrlRecord::TimeDiv, "1.0"},
        {"UTF-8 values", 79, "\"码型触发\"", &CtrlRecord::TrigMethod, "码型触发"},
    };
    for (const Case& c : cases) {
        ResetProgramState();
        writeBytes(path("quirk.rmt"), goldenWithLine(c.line, c.text));
        ASSERT_TRUE(ReadCtrlFile(path("quirk.rmt"))) << c.what;
        EXPECT_EQ(CtrlData.*c.field, c.expected) << c.what;
    }
}

TEST_F(CtrlFileTest, RefusedFilesLeaveTheRecordAsItWas)
{
    writeBytes(path("wrong.rmt"), goldenWithLine(1, "\"Korva Technologies,Inc. KV7200B Panel\""));
    writeBytes(path("short.rmt"), bytesOf(golden).left(300));
    CtrlData.TimeDiv = QStringLiteral("2.000ms");

    EXPECT_FALSE(ReadCtrlFile(path("wrong.rmt")));
    EXPECT_FALSE(ReadCtrlFile(path("missing.rmt")));
    EXPECT_EQ(CtrlData.TimeDiv, "2.000ms");
    ASSERT_EQ(platform->boxes.size(), 2);
    EXPECT_EQ(platform->boxes[0].text, "File Format is Invaild !");
    EXPECT_FALSE(platform->boxes[1].text.isEmpty());

    // A short file keeps what it held and stops with the system's words.
    EXPECT_FALSE(ReadCtrlFile(path("short.rmt")));
    EXPECT_EQ(CtrlData.ChProbe[1], "1X");
    EXPECT_EQ(CtrlData.TimeDiv, "2.000ms");
}

TEST_F(CtrlFileTest, ChineseFileReadInEnglishKeepsChineseWords)
{
    Language = LanguageChinese;
    ResetCtrlState();
    ASSERT_TRUE(WriteCtrlFile(path("zh.rmt")));
    Language = LanguageEnglish;
    ResetCtrlState();
    ASSERT_TRUE(ReadCtrlFile(path("zh.rmt")));
    EXPECT_EQ(CtrlData.TrigMethod, "边沿触发");
    EXPECT_EQ(CtrlData.RunStop, "运行");
    EXPECT_EQ(CtrlData.SlopeMode, "上升沿小于");
}

TEST_F(CtrlFileTest, FailedSaveLeavesTheOldFileWhole)
{
    const QString folder = path("locked");
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString target = folder + "/keep.rmt";
    writeBytes(target, "old");
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    if (QFile(folder + "/probe").open(QIODevice::WriteOnly))
        GTEST_SKIP() << "running with rights to every folder";

    EXPECT_FALSE(WriteCtrlFile(target));
    EXPECT_EQ(bytesOf(target), "old");
    ASSERT_EQ(platform->boxes.size(), 1);
    EXPECT_FALSE(platform->boxes[0].text.isEmpty());
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace
