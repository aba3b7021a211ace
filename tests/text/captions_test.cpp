#include "text/captions.h"
#include "text/language.h"

#include <QSet>
#include <gtest/gtest.h>

namespace {

// Every list pairs each caption of both languages with a slot, so a caption
// dropped from either language shows as an empty slot or a missing one.
TEST(CaptionLists, PairEveryCaptionOfBothLanguages)
{
    for (int list = 0; list < CaptionListCount; ++list) {
        const CaptionList which = static_cast<CaptionList>(list);
        SCOPED_TRACE(list);
        const int slots = CaptionSlotCount(which);
        EXPECT_GT(slots, 0);
        QSet<int> english, chinese;
        for (int slot = 0; slot < slots; ++slot) {
            const CaptionPair pair = CaptionSlot(which, slot);
            english.insert(pair.english);
            chinese.insert(pair.chinese);
            EXPECT_FALSE(Caption(which, slot, LanguageEnglish).isEmpty()) << slot;
            EXPECT_FALSE(Caption(which, slot, LanguageChinese).isEmpty()) << slot;
        }
        english.remove(-1);
        chinese.remove(-1);
        EXPECT_EQ(english.size(), Captions(which, LanguageEnglish).size());
        EXPECT_EQ(chinese.size(), Captions(which, LanguageChinese).size());
    }
}

struct Expected {
    CaptionList list;
    int slot;
    const char16_t* english;
    const char16_t* chinese;
};

// Blanks, misspellings and doubled ampersands stay as the windows show them, and
// the uneven lists pair by meaning (one case of each; the windows' tests see the rest).
const Expected expectedCaptions[] = {
    {CaptionList::MainToolbar, 6, u"Data Browser ", u"数据浏览器"},
    {CaptionList::SheetNames, 1, u"Untitle", u"未标题"},
    {CaptionList::CtrlList, 1, u"     Upload", u"      上传 ."},
    {CaptionList::Wave, 6, u"B&&W", u"黑白"},
    {CaptionList::Measure, 8, u"Pass&Fail", u"通过&失败"},
    {CaptionList::RecordPlay, 15, u"Please open the waveform record file.",
     u"Please open the waveform record file."},
    {CaptionList::MemoryWaveFileMenu, 1, u" File", u"文件 ."},
    {CaptionList::ValueWords, 9, u"AC", u"市电"},
    {CaptionList::NodeNames, 80, u"Anti-aliasing", u"Anti-aliasing"},
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
