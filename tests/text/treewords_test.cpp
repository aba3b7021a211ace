#include "text/treewords.h"
#include "state/programstate.h"

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
    {"OFF", WordSense::Plain, u"关闭"},
    {"EDGE", WordSense::Plain, u"边沿触发"},
    {"ALTERNATIVE", WordSense::Plain, u"交替触发"},
    {"AC", WordSense::Plain, u"交流"},
    {"AC", WordSense::AcLine, u"市电"},
    {"NORMAL", WordSense::Plain, u"普通"},
    {"ALTERNATION", WordSense::Plain, u"上升&下降沿"},
    {"+Less Than", WordSense::Plain, u"正脉宽小于"},
    {"+Less Than", WordSense::SlopeMode, u"上升沿小于"},
    {"-Equal", WordSense::Plain, u"负脉宽等于"},
    {"-Equal", WordSense::SlopeMode, u"下降沿等于"},
    {"EVENfield", WordSense::Plain, u"偶数场"},
    {"Channel", WordSense::Plain, u"通道设置"},
    {"ChannelB", WordSense::Plain, u"通道B"},
    {"Code", WordSense::Plain, u"码型"},
    {"EQUAL_TIME", WordSense::Plain, u"等效采样"},
    {"FULL", WordSense::Plain, u"完全"},
    {"HALF", WordSense::Plain, u"半网格"},
    {"NONE", WordSense::Plain, u"无"},
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
        {"Display", WordSense::Plain, u"显示"},
        {"Display", WordSense::DisplayGroup, u"显示系统"},
        {"Time Base", WordSense::Plain, u"水平系统"},
        {"Format", WordSense::Plain, u"模式"},
        {"Run|Stop", WordSense::Plain, u"运行|停止"},
        {"Set Trig to 50%", WordSense::Plain, u"触发电平至50%"},
        {"Virtual Keyboard", WordSense::Plain, u"虚拟系统"},
        {"Virtual Panel", WordSense::Plain, u"虚拟面板"},
        {"Anti-aliasing", WordSense::Plain, u"Anti-aliasing"},
        {"D15-D8", WordSense::Plain, u"D15-D8"},
        {"CH4", WordSense::Plain, u"CH4"},
        {"WindowA", WordSense::Plain, u"窗口A"},
        {"Alt Channel", WordSense::Plain, u"交替通道"},
    };
    for (const Word& node : nodes) {
        SCOPED_TRACE(node.english);
        EXPECT_EQ(NodeCaption(node.english, LanguageChinese, node.sense), QString::fromUtf16(node.chinese));
        EXPECT_EQ(NodeCaption(node.english, LanguageEnglish, node.sense), node.english);
    }
}

} // namespace
