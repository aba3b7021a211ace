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

struct WfmCommandCase {
    const char* name;
    QStringList options;
    int triggerKind;
    int longMemory;
    int timeMode;
    int peakFlags;
    int acquireMode;
    std::array<int, 4> enabled;
};

class WriteWfmCommand : public FileCommands, public ::testing::WithParamInterface<WfmCommandCase> {};

TEST_P(WriteWfmCommand, WritesTheFileTheOptionsAskFor)
{
    const WfmCommandCase& c = GetParam();
    ASSERT_EQ(runWriteWfm(QStringList{path("out.wfm")} + c.options), 0);
    const LittleEndianImage file = read("out.wfm");
    EXPECT_EQ(file.u16(0), 0xA5A5);
    EXPECT_EQ(file.text(4, 20), "KV7204B");
    EXPECT_EQ(file.u8(200), c.triggerKind);
    EXPECT_EQ(file.u8(52), c.longMemory);
    EXPECT_EQ(file.u8(308), c.timeMode);
    EXPECT_EQ(file.u8(402), c.peakFlags);
    EXPECT_EQ(file.i32(404), c.acquireMode);
    for (int n = 0; n < 4; ++n)
        EXPECT_EQ(file.u8(68 + 24 * n + 14), c.enabled[n]) << n;
    const int count = file.i32(60);
    EXPECT_EQ(count, c.longMemory ? 16384 : 4000);
    // The first channel's samples are there, not a block of zeros.
    const int first = c.triggerKind == 4 ? 504 : 420;
    EXPECT_NE(file.bytes(first, count), QByteArray(count, '\0'));
    EXPECT_EQ(file.size(), c.triggerKind == 4 ? 504 + 4 * count : 33188);
}

INSTANTIATE_TEST_SUITE_P(
    Options, WriteWfmCommand,
    ::testing::Values(
        WfmCommandCase{"Plain", {}, 0, 0, 0, 0, 0, {1, 1, 1, 1}},
        WfmCommandCase{"Alternation", {"--alternation"}, 4, 0, 0, 0, 0, {1, 1, 1, 1}},
        WfmCommandCase{"Peak", {"--peak"}, 0, 0, 0, 1, 2, {1, 1, 1, 1}},
        WfmCommandCase{"Roll", {"--roll"}, 0, 0, 2, 0, 0, {1, 1, 1, 1}},
        WfmCommandCase{"LongMemory", {"--long-memory"}, 0, 1, 0, 0, 0, {1, 0, 1, 0}},
        WfmCommandCase{"AlternationPeak", {"--peak", "--alternation"}, 4, 0, 0, 6, 2, {1, 1, 1, 1}},
        WfmCommandCase{"RollPeakLong", {"--roll", "--peak", "--long-memory"}, 0, 1, 2, 1, 2, {1, 0, 1, 0}}),
    [](const auto& info) { return std::string(info.param.name); });

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

struct BadArguments {
    const char* name;
    bool record;
    QStringList args; // "OUT" stands for a path in the temporary folder
};

class RefusedCommand : public FileCommands, public ::testing::WithParamInterface<BadArguments> {};

TEST_P(RefusedCommand, FailsAndLeavesNoFile)
{
    QStringList args = GetParam().args;
    args.replaceInStrings("OUT", path("out.bin"));
    const int result = GetParam().record ? runWriteRcd(args) : runWriteWfm(args);
    EXPECT_NE(result, 0);
    EXPECT_FALSE(QFile::exists(path("out.bin")));
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, RefusedCommand,
    ::testing::Values(
        BadArguments{"WfmNoPath", false, {"--peak"}},
        BadArguments{"WfmUnknownOption", false, {"OUT", "--fast"}},
        BadArguments{"WfmTwoPaths", false, {"OUT", "OUT2"}},
        BadArguments{"WfmLongMemoryInAlternation", false, {"OUT", "--alternation", "--long-memory"}},
        BadArguments{"WfmMissingFolder", false, {"OUT/none/x.wfm"}}, BadArguments{"RcdNoPath", true, {}},
        BadArguments{"RcdFramesMissing", true, {"OUT", "--frames"}},
        BadArguments{"RcdFramesZero", true, {"OUT", "--frames", "0"}},
        BadArguments{"RcdFramesText", true, {"OUT", "--frames", "ten"}},
        BadArguments{"RcdFramesTooMany", true, {"OUT", "--frames", "1834"}},
        BadArguments{"RcdFramesOverrunSecond", true, {"OUT", "--frames", "874", "--second-block"}}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
