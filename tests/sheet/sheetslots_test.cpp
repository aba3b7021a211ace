#include "acquire/waverecord.h"
#include "analysis/datarecord.h"
#include "analysis/measurerecord.h"
#include "document/sheetstate.h"
#include "platform/testplatform.h"
#include "sheet/sheetslots.h"
#include "state/programstate.h"
#include "support/freshstate.h"
#include "text/language.h"
#include "text/messages.h"
#include "wave/fftsetting.h"

#include <gtest/gtest.h>

namespace {

class SheetSlotsTest : public FreshStateTest {
  protected:
    void fill(SheetKind kind, int windows)
    {
        for (int i = 0; i < windows; ++i)
            ClaimSlot(kind);
    }

    ScopedTestPlatform test;
};

struct KindLimit {
    SheetKind kind;
    int limit;
};

class SheetLimitTest : public SheetSlotsTest, public ::testing::WithParamInterface<KindLimit> {};

TEST_P(SheetLimitTest, TheWindowPastTheLimitIsRefusedAndNothingChanges)
{
    const auto [kind, limit] = GetParam();
    OpenNewSheet();
    for (int i = 0; i < limit; ++i) {
        ASSERT_TRUE(MayAddWindow(kind)) << "window " << i;
        ClaimSlot(kind);
    }
    DataSheetDirty = false;
    EXPECT_FALSE(MayAddWindow(kind));
    ASSERT_EQ(test->boxes.size(), 1);
    EXPECT_EQ(test->boxes[0].text, "Exceed maximum file numbers limit!");
    EXPECT_EQ(test->boxes[0].style, vbExclamation);
    EXPECT_EQ(SheetCount(kind), limit);
    EXPECT_FALSE(DataSheetDirty);
    EXPECT_LT(limit, KindTableSize(kind)) << "the table's last element stays empty";
}

INSTANTIATE_TEST_SUITE_P(Kinds, SheetLimitTest,
                         ::testing::Values(KindLimit{SheetKind::Measure, 16}, KindLimit{SheetKind::Data, 16},
                                           KindLimit{SheetKind::Wave, 16},
                                           KindLimit{SheetKind::MemoryWave, 3},
                                           KindLimit{SheetKind::Record, 4}));

TEST_F(SheetSlotsTest, WithoutASheetEveryKindAsksForOneFirst)
{
    for (SheetKind kind : AllSheetKinds)
        EXPECT_FALSE(MayAddWindow(kind));
    ASSERT_EQ(test->boxes.size(), SheetKindCount);
    for (const RecordedBox& box : test->boxes) {
        EXPECT_EQ(box.text, "Please Open or Creat a Data Sheet First!");
        EXPECT_EQ(box.style, vbExclamation);
    }
    Language = LanguageChinese;
    LoadMessages();
    MayAddWindow(SheetKind::Wave);
    EXPECT_EQ(test->boxes.last().text, u"请首先打开或创建一个数据浏览器");
}

TEST_F(SheetSlotsTest, NewWindowsAreNamedByLabelAndCountInTheLanguageInForce)
{
    OpenNewSheet();
    EXPECT_EQ(ClaimSlot(SheetKind::Measure), 0);
    EXPECT_EQ(ClaimSlot(SheetKind::Measure), 1);
    ClaimSlot(SheetKind::MemoryWave);
    ClaimSlot(SheetKind::Record, LanguageChinese);
    ClaimSlot(SheetKind::Data, LanguageChinese);
    EXPECT_EQ(SheetSlotNames[KindIndex(SheetKind::Measure)], QStringList({"Measure0", "Measure1"}));
    EXPECT_EQ(SlotName(SheetKind::MemoryWave, 0), "Memory Wave0");
    EXPECT_EQ(SlotName(SheetKind::Record, 0), u"录制文件0");
    EXPECT_EQ(SlotName(SheetKind::Data, 0), u"数据0");
    EXPECT_TRUE(DataSheetDirty);
    fill(SheetKind::Wave, 2);
    RenameSlot(SheetKind::Wave, 1, "Ripple");
    EXPECT_EQ(SlotName(SheetKind::Wave, 1), "Ripple");
    EXPECT_EQ(WaveRecords[1].WaveTitle, "Ripple") << "the wave record keeps the name too";
    EXPECT_EQ(WaveRecords[0].WaveTitle, "Wave0");
}

TEST_F(SheetSlotsTest, RemovingTheSecondOfThreeWavesKeepsNamesAndMovesRecordsDown)
{
    OpenNewSheet();
    fill(SheetKind::Wave, 3);
    for (int slot = 0; slot < 3; ++slot)
        WaveRecords[slot].DateText = FftPlaceholders[slot].WindowText = QString::number(slot);
    DataSheetDirty = false;
    ReleaseSlot(SheetKind::Wave, 1);
    EXPECT_EQ(SheetSlotNames[KindIndex(SheetKind::Wave)], QStringList({"Wave0", "Wave2"}));
    EXPECT_EQ(WaveRecords[0].DateText, "0");
    EXPECT_EQ(WaveRecords[1].DateText, "2");
    EXPECT_EQ(FftPlaceholders[1].WindowText, "2") << "the placeholder moves with its record";
    EXPECT_EQ(WaveRecords[1].WaveTitle, "Wave2");
    EXPECT_TRUE(WaveRecords[2].DateText.isEmpty());
    EXPECT_TRUE(WaveRecords[2].WaveTitle.isEmpty());
    EXPECT_TRUE(DataSheetDirty);
    // The next name comes from the count, as the sheet has always made them.
    ClaimSlot(SheetKind::Wave);
    EXPECT_EQ(SlotName(SheetKind::Wave, 2), "Wave2");
}

// A new sheet's first windows show nothing of the windows the last sheet had
// in those slots: no traces, options, spectrum placeholder, values or tables.
TEST_F(SheetSlotsTest, ANewWindowsSlotStartsEmptyForEveryKind)
{
    OpenNewSheet();
    ClaimSlot(SheetKind::Wave);
    WaveRecords[0].HasData = WaveRecords[0].BestFit = WaveRecords[0].GridOn = true;
    WaveRecords[0].WaveCH1 = WaveArray(1025, 7);
    FftPlaceholders[0].Placeholder = true;
    MeasureRecords[0].Legend = DataRecords[0].Legend = "old";
    ClearSheet();
    OpenNewSheet();
    for (SheetKind kind : {SheetKind::Wave, SheetKind::Measure, SheetKind::Data})
        EXPECT_EQ(ClaimSlot(kind), 0);
    EXPECT_FALSE(WaveRecords[0].HasData || WaveRecords[0].BestFit || WaveRecords[0].GridOn);
    EXPECT_TRUE(WaveRecords[0].WaveCH1.empty());
    EXPECT_EQ(WaveRecords[0].WaveTitle, "Wave0");
    EXPECT_FALSE(FftPlaceholders[0].Placeholder);
    EXPECT_TRUE(MeasureRecords[0].Legend.isEmpty());
    EXPECT_TRUE(DataRecords[0].Legend.isEmpty());
}

TEST_F(SheetSlotsTest, RemovingTheFirstDataWindowMovesItsTableUpToTheLastElement)
{
    OpenNewSheet();
    fill(SheetKind::Data, 16);
    for (int slot = 0; slot < DataRecordCount; ++slot)
        DataRecords[slot].Legend = QString::number(slot);
    ReleaseSlot(SheetKind::Data, 0);
    EXPECT_EQ(SheetCount(SheetKind::Data), 15);
    EXPECT_EQ(DataRecords[0].Legend, "1");
    EXPECT_EQ(DataRecords[16].Legend, "17");
    EXPECT_TRUE(DataRecords[17].Legend.isEmpty());
}

TEST_F(SheetSlotsTest, SlotsOutsideTheCountAreLeftAlone)
{
    OpenNewSheet();
    fill(SheetKind::Wave, 1);
    DataSheetDirty = false;
    for (int slot : {-1, 1, 99}) {
        ReleaseSlot(SheetKind::Wave, slot);
        RenameSlot(SheetKind::Wave, slot, "x");
        EXPECT_TRUE(SlotName(SheetKind::Wave, slot).isEmpty());
    }
    EXPECT_EQ(SheetCount(SheetKind::Wave), 1);
    EXPECT_FALSE(DataSheetDirty);
}

TEST_F(SheetSlotsTest, ANewSheetTakesTheDefaultNameOfTheLanguage)
{
    OpenNewSheet(LanguageEnglish);
    EXPECT_TRUE(HasSheet());
    EXPECT_EQ(DataSheetName, "Untitle");
    OpenNewSheet(LanguageChinese);
    EXPECT_EQ(DataSheetName, u"未标题");
    EXPECT_EQ(SheetTreeCaption(LanguageEnglish), "Data Sheet");
    EXPECT_EQ(SheetTreeCaption(LanguageChinese), u"数据浏览器");
}

TEST_F(SheetSlotsTest, ClearingForgetsWindowsButNotTheirRecords)
{
    OpenNewSheet();
    fill(SheetKind::Wave, 2);
    WaveRecords[1].HasData = true;
    ClearSheet();
    EXPECT_FALSE(HasSheet());
    EXPECT_FALSE(DataSheetDirty);
    for (SheetKind kind : AllSheetKinds)
        EXPECT_EQ(SheetCount(kind), 0);
    EXPECT_TRUE(WaveRecords[1].HasData);
}

struct CloseCase {
    bool dirty;
    int answer;
    bool closes;
    bool saves;
};

class SheetCloseTest : public SheetSlotsTest, public ::testing::WithParamInterface<CloseCase> {};

TEST_P(SheetCloseTest, TheSaveQuestionDecides)
{
    const CloseCase c = GetParam();
    OpenNewSheet();
    DataSheetDirty = c.dirty;
    SheetFileName = "/bench/run.kvs";
    test->boxAnswers = {c.answer};
    bool saved = false;
    EXPECT_EQ(QuerySheetClose([&] { saved = true; }), c.closes);
    EXPECT_EQ(saved, c.saves);
    ASSERT_EQ(test->boxes.size(), c.dirty ? 1 : 0);
    if (!c.dirty) return;
    EXPECT_EQ(test->boxes[0].text, "Save the changes to the Data Sheet File? /bench/run.kvs");
    EXPECT_EQ(test->boxes[0].style, vbYesNoCancel);
}

INSTANTIATE_TEST_SUITE_P(Answers, SheetCloseTest,
                         ::testing::Values(CloseCase{false, vbCancel, true, false},
                                           CloseCase{true, vbYes, true, true},
                                           CloseCase{true, vbNo, true, false},
                                           CloseCase{true, vbCancel, false, false}));

} // namespace
