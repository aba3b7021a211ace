#include "state/programstate.h"
#include "text/treewords.h"

#include <gtest/gtest.h>

namespace {

struct Word {
    const char* english;
    WordSense sense;
    const char16_t* chinese;
};

// The controller's vocabulary, with the words Chinese tells apart by meaning.
const Word valueWords[] = {
    {"RUN", WordSense::Plain, u"运行"},
    {"ALTERNATIVE", WordSense::Plain, u"交替触发"},
    {"AC", WordSense::Plain, u"交流"},
    {"AC", WordSense::AcLine, u"市电"},
    {"ALTERNATION", WordSense::Plain, u"上升&下降沿"},
    {"+Less Than", WordSense::Plain, u"正脉宽小于"},
    {"+Less Than", WordSense::SlopeMode, u"上升沿小于"},
    {"-Equal", WordSense::Plain, u"负脉宽等于"},
    {"-Equal", WordSense::SlopeMode, u"下降沿等于"},
    {"HALF", WordSense::Plain, u"半网格"},
    {"CH2CH4", WordSense::Plain, u"CH2CH4"},
    {"1.00V", WordSense::Plain, u"1.00V"},
};

TEST(ValueWords, TranslateByMeaningAndComeBackFromEitherLanguage)
{
    for (const Word& word : valueWords) {
        SCOPED_TRACE(word.english);
        const QString english = QString::fromLatin1(word.english);
        const QString chinese = QString::fromUtf16(word.chinese);
        EXPECT_EQ(ValueWord(english, LanguageChinese, word.sense), chinese);
        EXPECT_EQ(ValueWord(english, LanguageEnglish, word.sense), english);
        EXPECT_EQ(ValueKeyword(chinese), english);
        EXPECT_EQ(ValueKeyword(english), english);
        EXPECT_TRUE(IsValueWord(chinese, english));
    }
}

TEST(ValueWords, EveryChineseWordLeadsBackToItsKeyword)
{
    constexpr CaptionList list = CaptionList::ValueWordsSecond;
    for (int slot = 0; slot < CaptionSlotCount(list); ++slot)
        EXPECT_EQ(ValueKeyword(Caption(list, slot, LanguageChinese)), Caption(list, slot, LanguageEnglish))
            << slot;
}

TEST(ValueWords, FollowTheLanguageInForce)
{
    ResetProgramState();
    Language = LanguageChinese;
    EXPECT_EQ(ValueWord("ON"), u"打开");
    EXPECT_EQ(NodeCaption("Trigger"), u"触发系统");
    ResetProgramState();
    EXPECT_EQ(ValueWord("ON"), "ON");
    EXPECT_FALSE(IsValueWord(QStringLiteral("打开"), "OFF"));
}

TEST(NodeCaptions, NameGroupsAndNodesInBothLanguages)
{
    const Word nodes[] = {
        {"Display", WordSense::Plain, u"显示"},         {"Display", WordSense::DisplayGroup, u"显示系统"},
        {"Run|Stop", WordSense::Plain, u"运行|停止"},   {"Anti-aliasing", WordSense::Plain, u"Anti-aliasing"},
        {"Alt Channel", WordSense::Plain, u"交替通道"},
    };
    for (const Word& node : nodes) {
        SCOPED_TRACE(node.english);
        EXPECT_EQ(NodeCaption(node.english, LanguageChinese, node.sense), QString::fromUtf16(node.chinese));
        EXPECT_EQ(NodeCaption(node.english, LanguageEnglish, node.sense), node.english);
    }
}

} // namespace
