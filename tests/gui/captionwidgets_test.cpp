#include "text/captionwidgets.h"
#include "text/language.h"

#include <QAction>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

template <typename T> T* add(QWidget* parent, const char* name)
{
    auto* child = new T(parent);
    child->setObjectName(QString::fromLatin1(name));
    return child;
}

// A new document dialog with the controls its caption list names.
class NewDocumentDialog : public QDialog {
  public:
    NewDocumentDialog()
    {
        setObjectName("frmNewDoc");
        fraType = add<QGroupBox>(this, "fraType");
        optSheet = add<QRadioButton>(fraType, "optSheet");
        lblWave = add<QLabel>(fraType, "lblWave");
        cmdOK = add<QPushButton>(this, "cmdOK");
        cmdCancel = add<QPushButton>(this, "cmdCancel");
    }

    void setCaptions(int language)
    {
        ApplyCaptions(
            this, CaptionList::NewDocument,
            {{"", 0}, {"fraType", 1}, {"optSheet", 2}, {"lblWave", 4}, {"cmdOK", 9}, {"cmdCancel", 10}},
            language);
    }

    QGroupBox* fraType;
    QRadioButton* optSheet;
    QLabel* lblWave;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};

TEST(ApplyCaptions, ALanguageSwitchReachesEveryBoundControl)
{
    NewDocumentDialog dialog;
    dialog.setCaptions(LanguageChinese);
    EXPECT_EQ(dialog.windowTitle(), u"新建文档");
    EXPECT_EQ(dialog.fraType->title(), u"文件类型");
    EXPECT_EQ(dialog.optSheet->text(), u"数据浏览器");
    EXPECT_EQ(dialog.lblWave->text(), u"波形窗口");
    EXPECT_EQ(dialog.cmdOK->text(), u"确定");
    EXPECT_EQ(dialog.cmdCancel->text(), u"取消");

    dialog.setCaptions(LanguageEnglish);
    EXPECT_EQ(dialog.windowTitle(), "New Document");
    EXPECT_EQ(dialog.fraType->title(), "File Type");
    EXPECT_EQ(dialog.optSheet->text(), "Data Sheet");
    EXPECT_EQ(dialog.lblWave->text(), "Wave");
    EXPECT_EQ(dialog.cmdOK->text(), "OK");
    EXPECT_EQ(dialog.cmdCancel->text(), "Cancel");
}

TEST(ApplyCaptions, RolesReachMenusActionsTooltipsAndTabs)
{
    QWidget window;
    auto* mnuFile = add<QMenu>(&window, "mnuFile");
    auto* mnuFileExit = new QAction(mnuFile);
    mnuFileExit->setObjectName("mnuFileExit");
    auto* tbNew = add<QToolButton>(&window, "tbNew");
    auto* tabs = add<QTabWidget>(&window, "tbsOptions");
    auto* picGeneral = add<QWidget>(tabs, "picGeneral");
    tabs->addTab(picGeneral, "?");

    ApplyCaptions(&window, CaptionList::MainMenus, {{"mnuFile", 0}, {"mnuFileExit", 9}}, LanguageChinese);
    ApplyCaptions(&window, CaptionList::MainToolbar, {{"tbNew", 0, CaptionRole::ToolTip}}, LanguageChinese);
    ApplyCaptions(&window, CaptionList::Options, {{"picGeneral", 1, CaptionRole::TabText}}, LanguageChinese);

    EXPECT_EQ(mnuFile->title(), u"文件");
    EXPECT_EQ(mnuFileExit->text(), u"退出");
    EXPECT_EQ(tbNew->toolTip(), u"新建");
    EXPECT_TRUE(tbNew->text().isEmpty());
    EXPECT_EQ(tabs->tabText(0), u"常规");
}

TEST(ApplyCaptions, SkipsMissingControlsAndSlotsTheListLacks)
{
    NewDocumentDialog dialog;
    dialog.cmdOK->setText("keep");
    ApplyCaptions(&dialog, CaptionList::NewDocument, {{"cmdOK", 11}, {"noSuchControl", 0}}, LanguageEnglish);
    EXPECT_EQ(dialog.cmdOK->text(), "keep");
    ApplyCaptions(nullptr, CaptionList::NewDocument, {{"cmdOK", 9}}, LanguageEnglish);
}

} // namespace
