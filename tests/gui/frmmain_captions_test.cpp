#include "mainwindowfixture.h"

#include "text/language.h"

#include <QDockWidget>
#include <QLabel>
#include <QToolBar>

namespace {

struct Caption {
    const char* name;
    const char16_t* english;
    const char16_t* chinese;
};

// Every menu of the menu bar with both captions, as the window shows them.
const Caption menus[] = {
    {"mnuFile", u"File", u"文件"},
    {"mnuFileNew", u"New", u"新建"},
    {"mnuFileOpen", u"Open...", u"打开..."},
    {"mnuFileSaveDataSheet", u"Save Data Sheet", u"保存数据文件"},
    {"mnuFileSaveCtrlFile", u"Save Controller", u"保存控制器文件"},
    {"mnuFileSaveAll", u"Save All", u"保存全部"},
    {"mnuFilePageSetup", u"Page Setup...", u"打印设置..."},
    {"mnuRecentCtrlRoot", u"Recent Control File", u"最近控制文件"},
    {"mnuRecentSheetRoot", u"Recent Data Sheet File", u"最近数据文件"},
    {"mnuFileExit", u"Exit", u"退出"},
    {"mnuView", u"View", u"视图"},
    {"mnuViewToolbar", u"Toolbar", u"工具栏"},
    {"mnuViewStatusBar", u"Status Bar", u"状态栏"},
    {"mnuViewController", u"Show Controller", u"显示控制器"},
    {"mnuViewDataBrowser", u"Show Data Browser", u"显示浏览器"},
    {"mnuTools", u"Tools", u"工具"},
    {"mnuToolsConnect", u"Connect to Oscilloscope", u"连接示波器"},
    {"mnuToolsDisconnect", u"Disconnect", u"断开连接"},
    {"mnuToolsOptions", u"Options...", u"选项..."},
    {"mnuWindow", u"Window", u"窗口"},
    {"mnuWindowCascade", u"Cascade", u"叠放"},
    {"mnuWindowTileHorizontal", u"Tile Horizontal", u"水平排列"},
    {"mnuWindowTileVertical", u"Tile Vertical", u"垂直排列"},
    {"mnuWindowArrangeIcons", u"Arrange Icons", u"排列图标"},
    {"mnuHelp", u"Help", u"帮助"},
    {"mnuHelpContents", u"Contents", u"内容"},
    {"mnuHelpAbout", u"About...", u"关于..."},
    {"mnuHelpLanguage", u"Language", u"语言"},
    {"mnuLanguageChinese", u"Chinese", u"Chinese"},
    {"mnuLanguageEnglish", u"English", u"English"},
};

const Caption toolTips[] = {
    {"New", u"New", u"新建"},
    {"Open", u"Open", u"打开"},
    {"Save", u"Save All", u"保存全部"},
    {"Connect", u"Connect to Oscilloscope", u"连接示波器"},
    {"Disconnect", u"Disconnect", u"断开连接"},
    {"Options", u"Options", u"选项"},
    {"Controller", u"DSO Controller", u"DSO控制器"},
    {"DataBrowser", u"Data Browser ", u"数据浏览器"},
    {"AddNewWaveform", u"Add New Waveform ", u"添加波形窗口"},
    {"AddNewMeasure", u"Add New Measure ", u"添加测量窗口"},
    {"AddNewData", u"Add New Data ", u"添加数据窗口"},
    {"AddNewRecord", u"Add New Record ", u"添加录制文件回放窗口"},
    {"AddNewMemoryWaveform", u"Add New Memory Waveform ", u"添加波形文件读取窗口"},
};

const Caption lamps[] = {
    {"picLED_OFF", u"Connection Status-[Disconnected]", u"连接状态-[未连接]"},
    {"picLED_ON", u"Connection Status-[Connected]", u"连接状态-[已连接]"},
};

const Caption panes[] = {
    {"DataSheet", u"Data Sheet", u"数据浏览器"},
    {"Controller", u"DSO Controller", u"DSO控制器"},
};

QString expected(const Caption& c, int language)
{
    return QString::fromUtf16(IsChinese(language) ? c.chinese : c.english);
}

class FrameCaptions : public MainWindowTest, public ::testing::WithParamInterface<int> {
  protected:
    // Starts in the other language, then switches through the language menu.
    void switchToParam()
    {
        SaveSetting("Selvane_Language_KV7200B", "Language", QString::number(1 - GetParam()));
        LoadLanguageSetting();
        load();
        find(IsChinese(GetParam()) ? "mnuLanguageChinese" : "mnuLanguageEnglish")->trigger();
    }

    QString menuCaption(const char* name) const
    {
        if (auto* menu = window->findChild<QMenu*>(QString::fromLatin1(name))) return menu->title();
        QAction* action = find(name);
        return action ? action->text() : QString();
    }
};

TEST_P(FrameCaptions, EveryMenuFollowsTheSwitch)
{
    switchToParam();
    for (const Caption& c : menus)
        EXPECT_EQ(menuCaption(c.name), expected(c, GetParam())) << c.name;
}

TEST_P(FrameCaptions, ToolbarAndLampTipsFollowTheSwitch)
{
    switchToParam();
    auto* bar = find<QToolBar>("tbToolBar");
    for (const Caption& c : toolTips)
        EXPECT_EQ(bar->findChild<QAction*>(QString::fromLatin1(c.name))->toolTip(), expected(c, GetParam()))
            << c.name;
    for (const Caption& c : lamps)
        EXPECT_EQ(find<QLabel>(c.name)->toolTip(), expected(c, GetParam())) << c.name;
}

TEST_P(FrameCaptions, PaneTitlesFollowTheSwitch)
{
    switchToParam();
    for (const Caption& c : panes)
        EXPECT_EQ(find<QDockWidget>(c.name)->windowTitle(), expected(c, GetParam())) << c.name;
}

TEST_P(FrameCaptions, TheChoiceIsMarkedAndSaved)
{
    switchToParam();
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
