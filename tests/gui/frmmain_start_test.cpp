#include "mainwindowfixture.h"

#include "frame/frmStartup.h"
#include "frame/recentfiles.h"
#include "link/linkstate.h"
#include "link/resourcechooser.h"
#include "text/language.h"

#include <QApplication>
#include <QLabel>

namespace {

void setStartupCheck()
{
    SaveSetting("General_KV7200B", "StartupCheckHardware", "-1");
}

TEST_F(MainWindowTest, AStartupCheckWithoutInstrumentWarnsBeforeTheWindowShows)
{
    setStartupCheck();
    window = std::make_unique<frmMain>();
    window->Form_Load();
    EXPECT_FALSE(window->isVisible());
    ASSERT_FALSE(test->boxes.isEmpty());
    EXPECT_EQ(test->boxes[0].text, "Can't Connect to Device!");
    EXPECT_EQ(test->boxes[0].title, "Init");
    EXPECT_FALSE(Connected);
    EXPECT_FALSE(Connecting);
    window->show();
    EXPECT_TRUE(find<QLabel>("picLED_OFF")->isVisible());
    EXPECT_FALSE(find<QLabel>("picLED_ON")->isVisible());
}

TEST_F(MainWindowTest, OnlyAStartupCheckConnectsToAnInstrumentThere)
{
    instrument->resources = {"USB0::0x1::0x2::SN::INSTR"};
    load();
    EXPECT_FALSE(Connected);
    EXPECT_TRUE(instrument->writes.empty());
    window.reset();
    setStartupCheck();
    load();
    EXPECT_TRUE(test->boxes.isEmpty());
    EXPECT_TRUE(Connected);
    EXPECT_TRUE(find<QLabel>("picLED_ON")->isVisible());
}

TEST_F(MainWindowTest, TheWindowTakesItsPlaceFromTheSettingsInTwips)
{
    SaveSetting("Settings_KV7200B", "MainWidth", "12000");
    SaveSetting("Settings_KV7200B", "MainHeight", "9000");
    load();
    EXPECT_EQ(window->width(), 800);
    EXPECT_EQ(window->height(), 600);
}

TEST_F(MainWindowTest, RecentEntriesShowTheListNewestFirst)
{
    load();
    EXPECT_FALSE(find<QMenu>("mnuRecentSheetRoot")->menuAction()->isVisible()) << "an empty list is hidden";
    EXPECT_FALSE(find("mnuFileBar3")->isVisible());
    window.reset();
    AddRecent(RecentSheetSection, "/bench/a.kvs");
    load();
    EXPECT_TRUE(find<QMenu>("mnuRecentSheetRoot")->menuAction()->isVisible());
    EXPECT_FALSE(find<QMenu>("mnuRecentCtrlRoot")->menuAction()->isVisible());
    EXPECT_TRUE(find("mnuFileBar3")->isVisible());
    EXPECT_EQ(find("mnuFileRecentSheet_0")->text(), "/bench/a.kvs");
    EXPECT_FALSE(find("mnuFileRecentSheet_1")->isVisible());

    for (const char* path : {"/bench/b&c.kvs", "/bench/c.kvs", "/bench/d.kvs"})
        window->AddRecentFile(RecentSheetSection, path);
    window->AddRecentFile(RecentSheetSection, "/bench/c.kvs");
    const char* expected[] = {"/bench/d.kvs", "/bench/c.kvs", "/bench/b&c.kvs"};
    for (int i = 0; i < 3; ++i) {
        QAction* entry = find(qPrintable(QStringLiteral("mnuFileRecentSheet_%1").arg(i)));
        EXPECT_TRUE(entry->isVisible());
        EXPECT_EQ(entry->data().toString(), expected[i]);
    }
    EXPECT_EQ(find("mnuFileRecentSheet_2")->text(), "/bench/b&&c.kvs") << "an ampersand is shown, not taken";
}

TEST_F(MainWindowTest, MainShowsTheWindowInTheStoredLanguageAndDropsTheSplash)
{
    SaveSetting("Selvane_Language_KV7200B", "Language", "0");
    window.reset(Main());
    InstallResourceChooser({}); // Main installed the modal chooser; later tests must not meet it
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Language, LanguageChinese);
    EXPECT_EQ(find<QMenu>("mnuFile")->title(), u"文件");
    for (QWidget* top : QApplication::topLevelWidgets())
        EXPECT_FALSE(top->objectName() == "frmSplash" && top->isVisible());
}

TEST(StartupProbe, ReadsItsTwoOptions)
{
    const StartupProbe none = ParseStartupProbe({"selvane"});
    EXPECT_FALSE(none.quitWhenShown);
    EXPECT_TRUE(none.screenshotPath.isEmpty());
    const StartupProbe both = ParseStartupProbe({"selvane", "--quit-when-shown", "--screenshot", "out.png"});
    EXPECT_TRUE(both.quitWhenShown);
    EXPECT_EQ(both.screenshotPath, "out.png");
    EXPECT_TRUE(ParseStartupProbe({"selvane", "--screenshot"}).screenshotPath.isEmpty());
}

} // namespace
