#include "datarows.h"
#include "files/filewriters.h"
#include "files_littleendian.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class FileCommands : public ::testing::Test {
  protected:
    QString path(const QString& name) const { return dir.filePath(name); }
    LittleEndianImage read(const QString& name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return LittleEndianImage(file.readAll());
    }

    QTemporaryDir dir;
};

// The "wfm" rows of data/file_commands.txt: the options give the header fields
// asked for, and the first channel's samples are there, not a block of zeros.
TEST_F(FileCommands, WriteWfmWritesTheFileTheOptionsAskFor)
{
    for (const QStringList& f : DataRows("sim/data/file_commands.txt")) {
        if (f[0] != QLatin1String("wfm")) continue;
        SCOPED_TRACE(f[1].toStdString());
        ASSERT_EQ(runWriteWfm(QStringList{path("out.wfm")} + f.mid(9)), 0);
        const LittleEndianImage file = read("out.wfm");
        EXPECT_EQ(file.u16(0), 0xA5A5);
        EXPECT_EQ(file.text(4, 20), "KV7204B");
        const int kind = f[2].toInt(), longMemory = f[3].toInt();
        EXPECT_EQ(file.u8(200), kind);
        EXPECT_EQ(file.u8(52), longMemory);
        EXPECT_EQ(file.u8(308), f[4].toInt());
        EXPECT_EQ(file.u8(402), f[5].toInt());
        EXPECT_EQ(file.i32(404), f[6].toInt());
        for (int n = 0; n < 4; ++n)
            EXPECT_EQ(file.u8(68 + 24 * n + 14), f[7][n] == u'1') << n;
        const int count = file.i32(60);
        EXPECT_EQ(count, longMemory ? 16384 : 4000);
        const int first = kind == 4 ? 504 : 420;
        EXPECT_NE(file.bytes(first, count), QByteArray(count, '\0'));
        EXPECT_EQ(file.size(), kind == 4 ? 504 + 4 * count : 33188);
    }
}

TEST_F(FileCommands, WriteRcdRecordsFramesAndASecondBlock)
{
    ASSERT_EQ(runWriteRcd({path("plain.rcd"), "--frames", "7"}), 0);
    const LittleEndianImage plain = read("plain.rcd");
    EXPECT_EQ(plain.u16(0), 0xBABA);
    EXPECT_EQ(plain.text(4, 20), "KV7204B");
    EXPECT_EQ(plain.size(), 128 + 7 * 600);
    EXPECT_EQ(plain.i16(58) - plain.i16(56) + 1, 7);
    EXPECT_EQ(plain.u8(116) & 1, 0);
    const int onOffsets[4] = {60, 70, 78, 86};
    const int source = plain.i32(48);
    ASSERT_TRUE(source >= 0 && source < 4);
    EXPECT_EQ(plain.u8(onOffsets[source]), 1);

    ASSERT_EQ(runWriteRcd({"--second-block", path("second.rcd")}), 0);
    const LittleEndianImage second = read("second.rcd");
    EXPECT_EQ(second.u8(116) & 1, 1);
    EXPECT_EQ(second.i32(44), 100 * 600);
    EXPECT_EQ(second.size(), 128 + 524160 + 100 * 600);
    EXPECT_NE(second.bytes(128 + 524160, 600), second.bytes(128, 600));
}

// The "refused" rows of data/file_commands.txt fail and leave no file.
TEST_F(FileCommands, RefusedArgumentsLeaveNoFile)
{
    for (const QStringList& f : DataRows("sim/data/file_commands.txt")) {
        if (f[0] != QLatin1String("refused")) continue;
        SCOPED_TRACE(f[1].toStdString());
        QStringList args = f.mid(3);
        args.replaceInStrings("OUT", path("out.bin"));
        EXPECT_NE(f[2] == QLatin1String("rcd") ? runWriteRcd(args) : runWriteWfm(args), 0);
        EXPECT_FALSE(QFile::exists(path("out.bin")));
    }
}

} // namespace
