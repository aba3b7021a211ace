#include "guitest.h"
#include "mainwindowfixture.h"

#include "text/language.h"

#include <QDockWidget>
#include <QLabel>
#include <QToolBar>

namespace {

// Starts in the other language, switches through the language menu, and checks
// every caption of the frame, the marks of the menu and the stored choice.
class FrameCaptions : public MainWindowTest, public ::testing::WithParamInterface<int> {};

TEST_P(FrameCaptions, EveryCaptionFollowsTheSwitch)
{
    SaveSetting("Selvane_Language_KV7200B", "Language", QString::number(1 - GetParam()));
    LoadLanguageSetting();
    load();
    find(IsChinese(GetParam()) ? "mnuLanguageChinese" : "mnuLanguageEnglish")->trigger();
    auto* bar = find<QToolBar>("tbToolBar");
    for (const QStringList& row : ExpectationRows("frame_captions.txt")) {
        const QString name = row.value(1);
        QString shown;
        if (row[0] == "menu") {
            auto* menu = window->findChild<QMenu*>(name);
            shown = menu ? menu->title() : find(qPrintable(name))->text();
        } else if (row[0] == "tip") {
            shown = bar->findChild<QAction*>(name)->toolTip();
        } else if (row[0] == "lamp") {
            shown = find<QLabel>(qPrintable(name))->toolTip();
        } else {
            shown = find<QDockWidget>(qPrintable(name))->windowTitle();
        }
        EXPECT_EQ(shown, row.value(IsChinese(GetParam()) ? 3 : 2))
            << row[0].toStdString() << " " << name.toStdString();
    }
    EXPECT_EQ(Language, GetParam());
    EXPECT_EQ(find("mnuLanguageChinese")->isChecked(), IsChinese(GetParam()));
    EXPECT_EQ(find("mnuLanguageEnglish")->isChecked(), !IsChinese(GetParam()));
    EXPECT_EQ(GetSetting("Selvane_Language_KV7200B", "Language"), QString::number(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(BothLanguages, FrameCaptions, ::testing::Values(LanguageChinese, LanguageEnglish));

// The group separators stand where the menus have them.
TEST_F(MainWindowTest, SeparatorsStandBetweenTheGroups)
{
    load();
    struct Bar {
        const char* menu;
        const char* before;
        const char* bar;
    };
    const Bar bars[] = {
        {"mnuFile", "mnuFileOpen", "mnuFileBar0"},       {"mnuFile", "mnuFileSaveAll", "mnuFileBar1"},
        {"mnuFile", "mnuFilePageSetup", "mnuFileBar3"},  {"mnuView", "mnuViewStatusBar", "mnuViewBar0"},
        {"mnuTools", "mnuToolsConnect", "mnuToolsBar0"}, {"mnuTools", "mnuToolsDisconnect", "mnuToolsBar1"},
        {"mnuHelp", "mnuHelpContents", "mnuHelpBar0"},   {"mnuHelp", "mnuHelpAbout", "mnuHelpBar1"}};
    for (const Bar& b : bars) {
        const QList<QAction*> entries = find<QMenu>(b.menu)->actions();
        EXPECT_TRUE(find(b.bar)->isSeparator()) << b.bar;
        EXPECT_EQ(entries.value(entries.indexOf(find(b.before)) + 1), find(b.bar)) << b.bar;
    }
    const QList<QAction*> file = find<QMenu>("mnuFile")->actions();
    EXPECT_EQ(file.value(file.indexOf(find("mnuFileExit")) - 1), find("mnuFileBar5"));
}

} // namespace
