#include "platform/testplatform.h"
#include "support/freshstate.h"
#include "text/language.h"
#include "text/messages.h"

#include <gtest/gtest.h>

namespace {

const QString section = QStringLiteral("Selvane_Language_KV7200B");

class LanguageSetting : public FreshStateTest {
  protected:
    ScopedTestPlatform test;
};

TEST_F(LanguageSetting, AFirstStartSpeaksEnglish)
{
    Language = LanguageChinese;
    LoadLanguageSetting();
    EXPECT_EQ(Language, LanguageEnglish);
}

TEST_F(LanguageSetting, RoundTripsThroughTheStoreAsText)
{
    Language = LanguageChinese;
    SaveLanguageSetting();
    EXPECT_EQ(GetSetting(section, "Language"), "0");
    Language = LanguageEnglish;
    LoadLanguageSetting();
    EXPECT_EQ(Language, LanguageChinese);
}

TEST_F(LanguageSetting, TextThatIsNoNumberReadsAsZero)
{
    SaveSetting(section, "Language", "English");
    LoadLanguageSetting();
    EXPECT_EQ(Language, 0);
}

TEST_F(LanguageSetting, HelpFileFollowsTheLanguage)
{
    EXPECT_EQ(HelpFileName(LanguageChinese), "KV7200help_Chinese.html");
    EXPECT_EQ(HelpFileName(LanguageEnglish), "KV7200help.html");
    EXPECT_EQ(HelpFileName(7), "KV7200help.html");
    EXPECT_TRUE(HelpFilePath(LanguageChinese).endsWith("/KV7200help_Chinese.html"));
}

TEST_F(LanguageSetting, ResetBringsBackEnglishTexts)
{
    Language = LanguageChinese;
    LoadMessages();
    ResetProgramState();
    EXPECT_EQ(Language, LanguageEnglish);
    EXPECT_EQ(MsgDeviceNotFound, "Device not found!");
}

} // namespace
