#include "text/captions.h"
#include "text/language.h"

#include <QSet>
#include <gtest/gtest.h>

namespace {

struct ListShape {
    CaptionList list;
    int english;
    int chinese;
    int slots;
};

void PrintTo(const ListShape& shape, std::ostream* os)
{
    *os << "list " << int(shape.list);
}

class CaptionLists : public ::testing::TestWithParam<ListShape> {};

TEST_P(CaptionLists, HaveTheirCountsAndPairEveryCaptionOfBothLanguages)
{
    const ListShape shape = GetParam();
    EXPECT_EQ(Captions(shape.list, LanguageEnglish).size(), shape.english);
    EXPECT_EQ(Captions(shape.list, LanguageChinese).size(), shape.chinese);
    ASSERT_EQ(CaptionSlotCount(shape.list), shape.slots);

    QSet<int> english, chinese;
    for (int slot = 0; slot < shape.slots; ++slot) {
        const CaptionPair pair = CaptionSlot(shape.list, slot);
        english.insert(pair.english);
        chinese.insert(pair.chinese);
        EXPECT_FALSE(Caption(shape.list, slot, LanguageEnglish).isEmpty()) << slot;
        EXPECT_FALSE(Caption(shape.list, slot, LanguageChinese).isEmpty()) << slot;
    }
    // No caption of either language is left without a slot.
    english.remove(-1);
    chinese.remove(-1);
    EXPECT_EQ(english.size(), shape.english);
    EXPECT_EQ(chinese.size(), shape.chinese);
}

INSTANTIATE_TEST_SUITE_P(
    All, CaptionLists,
    ::testing::Values(
        ListShape{CaptionList::MainMenus, 28, 28, 28}, ListShape{CaptionList::MainToolbar, 15, 15, 15},
        ListShape{CaptionList::PanePopups, 20, 20, 20}, ListShape{CaptionList::SheetNames, 2, 2, 2},
        ListShape{CaptionList::CtrlList, 5, 5, 5}, ListShape{CaptionList::NewDocument, 11, 11, 11},
        ListShape{CaptionList::OpenDocument, 6, 6, 6}, ListShape{CaptionList::Options, 18, 18, 18},
        ListShape{CaptionList::VirtualPanel, 11, 13, 13}, ListShape{CaptionList::VirtualKeyboard, 1, 1, 1},
        ListShape{CaptionList::FineAdjust, 4, 4, 4}, ListShape{CaptionList::PassFailed, 9, 9, 9},
        ListShape{CaptionList::Wave, 18, 18, 18}, ListShape{CaptionList::MemoryWave, 18, 19, 19},
        ListShape{CaptionList::Data, 8, 8, 8}, ListShape{CaptionList::DataSecond, 8, 8, 8},
        ListShape{CaptionList::Measure, 11, 11, 11}, ListShape{CaptionList::MeasureSecond, 11, 11, 11},
        ListShape{CaptionList::RecordPlay, 18, 16, 18}, ListShape{CaptionList::RecordPlaySecond, 15, 15, 15},
        ListShape{CaptionList::MemoryWaveFileMenu, 21, 21, 21},
        ListShape{CaptionList::MemoryWaveSecond, 21, 21, 21},
        ListShape{CaptionList::MeasureNames, 18, 18, 18}, ListShape{CaptionList::ValueWords, 33, 39, 39},
        ListShape{CaptionList::ValueWordsSecond, 60, 61, 67}, ListShape{CaptionList::NodeNames, 89, 62, 90},
        ListShape{CaptionList::ResourceDialog, 4, 4, 4}, ListShape{CaptionList::WaveSetting, 11, 11, 11},
        ListShape{CaptionList::About, 2, 2, 2}));

TEST(CaptionLists, EveryListIsCovered)
{
    EXPECT_EQ(CaptionListCount, 29);
}

struct Expected {
    CaptionList list;
    int slot;
    const char16_t* english;
    const char16_t* chinese;
};

// Blanks, misspellings and doubled ampersands stay as the windows show them, and
// the uneven lists pair by meaning.
const Expected expectedCaptions[] = {
    {CaptionList::MainToolbar, 6, u"Data Browser ", u"数据浏览器"},
    {CaptionList::MainToolbar, 7, u"Add New Waveform ", u"添加波形窗口"},
    {CaptionList::MainToolbar, 14, u"Connection Status-[Connected]", u"连接状态-[已连接]"},
    {CaptionList::SheetNames, 1, u"Untitle", u"未标题"},
    {CaptionList::CtrlList, 1, u"     Upload", u"      上传 ."},
    {CaptionList::OpenDocument, 0, u"New Document", u"打开文档"},
    {CaptionList::Wave, 6, u"B&&W", u"黑白"},
    {CaptionList::Wave, 14, u"     Preview", u"         预览 ."},
    {CaptionList::Measure, 3, u"Fail  ", u"失败 .  "},
    {CaptionList::Measure, 8, u"Pass&Fail", u"通过&失败"},
    {CaptionList::VirtualPanel, 5, u"Export  ", u"导出     "},
    {CaptionList::VirtualPanel, 8, u"Run", u"运行"},
    {CaptionList::VirtualPanel, 12, u"Print Preview", u"预览"},
    {CaptionList::MemoryWave, 18, u"     Refresh", u"     更新"},
    {CaptionList::RecordPlay, 0, u"Open record file", u"打开波形录制文件"},
    {CaptionList::RecordPlay, 7, u"Pause", u"暂停"},
    {CaptionList::RecordPlay, 9, u"Go to start", u"指向第一帧"},
    {CaptionList::RecordPlay, 15, u"Please open the waveform record file.",
     u"Please open the waveform record file."},
    {CaptionList::RecordPlay, 16, u"Replaying", u"正在回放"},
    {CaptionList::RecordPlay, 17, u"/", u"/"},
    {CaptionList::MemoryWaveFileMenu, 1, u" File", u"文件 ."},
    {CaptionList::ValueWords, 9, u"AC", u"市电"},
    {CaptionList::ValueWords, 38, u"HALF", u"半屏"},
    {CaptionList::ValueWordsSecond, 66, u"CH3CH4", u"CH3CH4"},
    {CaptionList::NodeNames, 80, u"Anti-aliasing", u"Anti-aliasing"},
    {CaptionList::NodeNames, 89, u"Display", u"显示系统"},
    {CaptionList::ResourceDialog, 1, u"Resource ", u"当前系统中的资源"},
};

TEST(CaptionLists, KeepLiteralsAndPairByMeaning)
{
    for (const Expected& e : expectedCaptions) {
        SCOPED_TRACE(QString::fromUtf16(e.english).toStdString());
        EXPECT_EQ(Caption(e.list, e.slot, LanguageEnglish), QString::fromUtf16(e.english));
        EXPECT_EQ(Caption(e.list, e.slot, LanguageChinese), QString::fromUtf16(e.chinese));
    }
}

TEST(CaptionLists, SecondFormsCarryTheFirstFormsCaptions)
{
    for (int language : {LanguageChinese, LanguageEnglish}) {
        EXPECT_EQ(Captions(CaptionList::DataSecond, language), Captions(CaptionList::Data, language));
        EXPECT_EQ(Captions(CaptionList::MeasureSecond, language), Captions(CaptionList::Measure, language));
        EXPECT_EQ(Captions(CaptionList::MemoryWaveSecond, language),
                  Captions(CaptionList::MemoryWaveFileMenu, language));
    }
    EXPECT_NE(Captions(CaptionList::RecordPlaySecond, LanguageChinese),
              Captions(CaptionList::RecordPlay, LanguageChinese));
}

TEST(CaptionLists, StrayArgumentsGiveEmptyTextsAndUnknownLanguagesEnglish)
{
    EXPECT_TRUE(Caption(CaptionList::MainMenus, -1, LanguageEnglish).isEmpty());
    EXPECT_TRUE(Caption(CaptionList::MainMenus, 28, LanguageChinese).isEmpty());
    EXPECT_TRUE(Captions(static_cast<CaptionList>(99), LanguageEnglish).isEmpty());
    EXPECT_EQ(CaptionSlotCount(static_cast<CaptionList>(-3)), 0);
    EXPECT_EQ(Caption(CaptionList::MainMenus, 0, 2), "File");
}

} // namespace
