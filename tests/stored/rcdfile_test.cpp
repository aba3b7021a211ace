// The record file reader over files the tests write: the order of the checks,
// what a load keeps, the second block and the read limit.
#include "rcdbuilder.h"

#include "platform/testplatform.h"
#include "state/programstate.h"
#include "stored/rcdfile.h"
#include "stored/recordslot.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

namespace {

class RcdFileTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override { ResetProgramState(); }

    RecordLoad load(const RcdBuilder& file) { return LoadRecordBytes(file.bytes, file.length(), slot); }
    QString write(const RcdBuilder& file, const QString& name = "r.rcd")
    {
        const QString path = dir.filePath(name);
        EXPECT_TRUE(file.save(path));
        return path;
    }

    RecordSlot slot;
    QTemporaryDir dir;
    ScopedTestPlatform test;
};

struct Refusal {
    const char* name;
    std::function<void(RcdBuilder&)> spoil;
    RecordLoad outcome;
};

const Refusal Refusals[] = {
    {"ShortModel", [](RcdBuilder& f) { f.model("KV7204"); }, RecordLoad::BadModel},
    {"LongModel", [](RcdBuilder& f) { f.model("KV7204BX"); }, RecordLoad::BadModel},
    {"WaveformMagic", [](RcdBuilder& f) { f.u16(0, 0xA5A5); }, RecordLoad::BadMagic},
    // The model is tested first, so a file wrong in both is refused for its model.
    {"ModelAndMagic", [](RcdBuilder& f) { f.model("KV7204").u16(0, 0); }, RecordLoad::BadModel},
    {"SourceOff", [](RcdBuilder& f) { f.channel(0, 0, 1000000, 0); }, RecordLoad::InvalidChannel},
    {"AltSourceOff", [](RcdBuilder& f) { f.source(4, 1); }, RecordLoad::InvalidChannel},
    {"UnknownSource", [](RcdBuilder& f) { f.source(5); }, RecordLoad::InvalidChannel},
};

class RcdRefusalTest : public RcdFileTest, public ::testing::WithParamInterface<Refusal> {};

TEST_P(RcdRefusalTest, RefusedWithTheMessageOfItsCheck)
{
    RcdBuilder file;
    GetParam().spoil(file);
    ASSERT_TRUE(RecordSlotAt(2));
    RecordSlots[2].HasFile = true;
    RecordSlots[2].FileName = "old.rcd";
    EXPECT_EQ(LoadRecordFile(write(file), 2), GetParam().outcome);
    ASSERT_EQ(test->boxes.size(), 1);
    EXPECT_EQ(test->boxes[0].text, RecordLoadMessage(GetParam().outcome));
    // Model and magic leave the slot as it was; a bad channel marks it empty.
    EXPECT_EQ(RecordSlots[2].HasFile, GetParam().outcome != RecordLoad::InvalidChannel);
    EXPECT_EQ(RecordSlots[2].FileName, "old.rcd");
}

INSTANTIATE_TEST_SUITE_P(Checks, RcdRefusalTest, ::testing::ValuesIn(Refusals),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(RcdFileTest, FramesAreNumberedFromOneWhateverTheHeaderSays)
{
    RcdBuilder file(10);
    file.frames(5, 14);
    ASSERT_EQ(load(file), RecordLoad::Loaded);
    EXPECT_EQ(slot.FirstFrame, 1);
    EXPECT_EQ(slot.LastFrame, 10);
    EXPECT_EQ(slot.CurrentFrame, 1);
    EXPECT_TRUE(slot.HasFile);
    EXPECT_FALSE(slot.HasSecond);
    EXPECT_EQ(slot.SourceName, "CH1");
}

TEST_F(RcdFileTest, SamplesAreTheBytesWithNoOffsetUpToL)
{
    RcdBuilder file(2);
    file.area(0, char(0)).area(1, char(199)).area(1199, char(255));
    ASSERT_EQ(load(file), RecordLoad::Loaded);
    ASSERT_EQ(slot.Samples.size(), size_t(1200 + 1)); // bounds 0 to L
    EXPECT_EQ(slot.Samples[0], 0);
    EXPECT_EQ(slot.Samples[1], 199);
    EXPECT_EQ(slot.Samples[600], 2);
    EXPECT_EQ(slot.Samples[1199], 255);
    EXPECT_EQ(slot.Samples[1200], 0);
    EXPECT_EQ(slot.SecondSamples.size(), slot.Samples.size());
}

TEST_F(RcdFileTest, AlternateSourceGivesItsChannelAndTexts)
{
    RcdBuilder file;
    // Any non-zero byte is on; CH3: 2 mV a division, shifted down one division.
    file.source(4, 2).channel(2, 0x80, 2000, -25).channel(1, 1, 5000000, 10);
    file.i64(96, 2'000'000'000'000).i64(104, -300'000'000);
    ASSERT_EQ(load(file), RecordLoad::Loaded);
    EXPECT_EQ(slot.SourceName, "CH3");
    EXPECT_EQ(slot.VoltText, "2.00mV");
    EXPECT_EQ(slot.OffsetText, "-2.00mV");
    EXPECT_EQ(slot.TimeText, "2.000s");
    EXPECT_EQ(slot.DelayText, "-300.0us");

    RcdBuilder plain;
    plain.channel(0, 1, 1000000, 10); // the offset divides the shift as a real number: 10/25 of 1 V
    ASSERT_EQ(load(plain), RecordLoad::Loaded);
    EXPECT_EQ(slot.VoltText, "1.00V");
    EXPECT_EQ(slot.OffsetText, "400mV");
}

TEST_F(RcdFileTest, SecondBlockNeedsAFrameAreaOf524288Bytes)
{
    RcdBuilder shortFile(3, RecordSecondMinimum - 1);
    shortFile.second(600);
    EXPECT_EQ(load(shortFile), RecordLoad::InvalidChannel);
    EXPECT_FALSE(slot.HasFile);

    RcdBuilder file(3, RecordSecondMinimum);
    file.second(120).area(RecordSecondStart, char(7)).area(RecordSecondStart + 119, char(9));
    file.area(RecordSecondStart + 120, char(11)); // past SecondCount
    ASSERT_EQ(load(file), RecordLoad::Loaded);
    EXPECT_TRUE(slot.HasSecond);
    EXPECT_EQ(slot.SecondSamples[0], 7);
    EXPECT_EQ(slot.SecondSamples[119], 9);
    EXPECT_EQ(slot.SecondSamples[120], 0);
    EXPECT_EQ(slot.Samples[RecordSecondStart], 7) << "the first block runs on through the second";
}

TEST_F(RcdFileTest, ALongFileIsReadOnlyToTheLimit)
{
    RcdBuilder file(3, 1200000 - 128);
    const qsizetype lastRead = RecordReadLimit - 128 - 1;
    file.area(lastRead, char(42)).area(lastRead + 1, char(43));
    ASSERT_EQ(LoadRecordFile(write(file), 0), RecordLoad::Loaded);
    const RecordSlot& loaded = RecordSlots[0];
    ASSERT_EQ(loaded.Samples.size(), size_t(1200000 - 128 + 1));
    EXPECT_EQ(loaded.Samples[size_t(lastRead)], 42);
    EXPECT_EQ(loaded.Samples[size_t(lastRead + 1)], 0) << "frames past the limit read as zeros";
    EXPECT_TRUE(test->boxes.isEmpty());
}

TEST_F(RcdFileTest, ALoadKeepsThePathAndChangesTheSheet)
{
    RecordSlots[1].Name = "Record1";
    const QString path = write(RcdBuilder());
    ASSERT_EQ(LoadRecordFile(path, 1), RecordLoad::Loaded);
    EXPECT_EQ(RecordSlots[1].FileName, path);
    EXPECT_EQ(RecordCaption(RecordSlots[1]), "Record1  (" + path + ")");
    EXPECT_EQ(RecordSlots[1].PlayState, RecordStop);
}

TEST_F(RcdFileTest, ACancelledDialogChangesNothing)
{
    EXPECT_EQ(LoadRecord(0), RecordLoad::Cancelled);
    ASSERT_EQ(test->openRequests.size(), 1);
    EXPECT_EQ(test->openRequests[0].title, "Open Record Files");
    EXPECT_FALSE(RecordSlots[0].HasFile);
    EXPECT_TRUE(test->boxes.isEmpty());
}

TEST_F(RcdFileTest, AFileShorterThanItsHeaderIsNoRecord)
{
    RcdBuilder file;
    file.bytes.truncate(100);
    EXPECT_EQ(load(file), RecordLoad::BadMagic);
    EXPECT_FALSE(slot.HasFile);
}

} // namespace
