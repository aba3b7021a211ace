#include "support/freshstate.h"
#include "text/language.h"
#include "text/messages.h"

#include <QSet>
#include <gtest/gtest.h>

namespace {

using Messages = FreshStateTest;

TEST_F(Messages, ASwitchOfLanguageReachesEveryMessage)
{
    QSet<const QString*> targets;
    for (const MessageEntry& entry : MessageCatalogue()) {
        targets.insert(entry.text);
        EXPECT_NE(QString::fromUtf16(entry.english), QString::fromUtf16(entry.chinese));
    }
    EXPECT_EQ(targets.size(), 32); // the thirty of the table and the pair that points to the maker
    EXPECT_EQ(qsizetype(MessageCatalogue().size()), targets.size());

    Language = LanguageChinese;
    LoadMessages();
    for (const MessageEntry& entry : MessageCatalogue())
        EXPECT_EQ(*entry.text, QString::fromUtf16(entry.chinese));
    Language = LanguageEnglish;
    LoadMessages();
    for (const MessageEntry& entry : MessageCatalogue())
        EXPECT_EQ(*entry.text, QString::fromUtf16(entry.english));
}

TEST_F(Messages, KeepTheirBlanksMisspellingsAndPunctuation)
{
    EXPECT_EQ(MsgVersionTooLow, "The version of the DSO must be higher than ");
    EXPECT_EQ(MsgSheetFormat, "Data Sheet File Format is Invaild !");
    EXPECT_EQ(MsgFileFormat, "File Format is Invaild !");
    EXPECT_EQ(MsgSheetFirst, "Please Open or Creat a Data Sheet First!");
    EXPECT_EQ(MsgSaveCtrl, "Save the changes to the Control File? ");
    EXPECT_EQ(MsgNoCode, "Add 'mnuViewRefresh_Click' code");

    Language = LanguageChinese;
    LoadMessages();
    EXPECT_EQ(MsgVersionTooLow, u"DSO 版本必须高于");
    EXPECT_EQ(MsgDeviceNotFound, u"设备未找到!"); // a plain "!", unlike its neighbours
    EXPECT_EQ(MsgConnectFirst, u"请首先连接示波器！");
    EXPECT_EQ(MsgSheetFirst, u"请首先打开或创建一个数据浏览器");
    EXPECT_EQ(MsgSaveSheet, u"是否保存对数据浏览器文件的更改？");
}

TEST_F(Messages, TextsOutsideTheCatalogueStayEnglish)
{
    Language = LanguageChinese;
    LoadMessages();
    EXPECT_EQ(MsgPositionAtLimit, u"Position at limit\uFF01");
}

} // namespace
