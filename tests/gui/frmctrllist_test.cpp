// The controller pane: expansion kept over a rebuild, the rules that read the
// Format node, the connection check, and the file commands' questions.

#include "frmwave_fixture.h"

#include "controller/ctrlstate.h"
#include "controller/ctrltree.h"
#include "controller/download.h"
#include "controller/frmCtrlList.h"
#include "controller/frmPatternDlg.h"
#include "link/linkstate.h"
#include "panel/panelwindows.h"
#include "platform/testplatform.h"
#include "state/programstate.h"
#include "text/treewords.h"

#include <QApplication>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace {

class CtrlListTest : public WaveWindowTest {
  protected:
    void relayout() { Q_EMIT CtrlNotifier().recordChanged(); }

    frmCtrlList list;
};

TEST_F(CtrlListTest, AveragesAppearsAndTheExpansionSurvives)
{
    list.mnuExpand_Click();
    list.node(0, GroupTrigger)->setExpanded(false);
    CtrlData.AcqType = ValueWord("AVERAGE");
    relayout();
    QTreeWidgetItem* acquire = list.node(0, GroupAcquire);
    ASSERT_EQ(acquire->childCount(), 3);
    EXPECT_EQ(acquire->child(2)->text(0), "Averages [16]");
    EXPECT_TRUE(acquire->isExpanded());
    EXPECT_FALSE(list.node(0, GroupTrigger)->isExpanded());
    EXPECT_TRUE(list.tree()->topLevelItem(0)->isExpanded());
}

TEST_F(CtrlListTest, EditedValuesFollowInPlaceAndALayoutChangeKeepsTheExpansion)
{
    list.mnuExpand_Click();
    QTreeWidgetItem* timeDiv = list.node(2, GroupTimeBase);
    CtrlData.TimeDiv = QStringLiteral("2.000ms");
    list.SyncNodeTexts();
    EXPECT_EQ(list.node(2, GroupTimeBase), timeDiv) << "the same item, no rebuild";
    EXPECT_EQ(timeDiv->text(0), "Time/Div [2.000ms]");

    list.node(0, GroupTrigger)->setExpanded(false);
    CtrlData.TrigMethod = ValueWord("PULSE");
    list.SyncNodeTexts();
    EXPECT_EQ(list.node(3, GroupTrigger)->text(0), "Source [CH1]");
    EXPECT_FALSE(list.node(0, GroupTrigger)->isExpanded());
    EXPECT_TRUE(list.node(0, GroupTimeBase)->isExpanded());

    // The virtual panel's node opens the panel window, and says nothing.
    list.PraseCtrlList(QStringLiteral("KV7200B\\Virtual Panel"));
    EXPECT_TRUE(platform->boxes.isEmpty());
    const auto open = [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QLatin1String("frmV_Panel") && w->isVisible()) return true;
        return false;
    };
    EXPECT_TRUE(open());
    CloseVirtualPanelWindows();
}

TEST_F(CtrlListTest, RulesReadTheFormatNode)
{
    struct Case {
        const char* format;
        const char* method;
        bool yt, notXy;
        int triggerRule, timeDivRule, ch3Rule;
    };
    const Case cases[] = {
        {"Y-T", "EDGE", true, true, -1, -1, -1},
        {"X-Y", "EDGE", false, false, 1, 2, 0},
        {"Roll", "EDGE", false, true, 1, -1, -1},
        // No Format node: not Y-T, and nothing forbids the window times.
        {"X-Y", "ALTERNATIVE", false, true, 1, -1, -1},
    };
    for (const Case& c : cases) {
        CtrlData.TimeFormat = QString::fromLatin1(c.format);
        CtrlData.TrigMethod = ValueWord(QString::fromLatin1(c.method));
        list.RebuildTree();
        const QString what = QStringLiteral("%1 %2").arg(c.format, c.method);
        EXPECT_EQ(list.FormatIsYT(), c.yt) << what.toStdString();
        EXPECT_EQ(list.FormatIsNotXY(), c.notXy) << what.toStdString();
        EXPECT_EQ(list.NodeRule(list.node(2, GroupTrigger)), c.triggerRule) << what.toStdString();
        EXPECT_EQ(list.NodeRule(list.node(2, GroupTimeBase)), c.timeDivRule) << what.toStdString();
        EXPECT_EQ(list.NodeRule(list.node(0, 4)->child(1)), c.ch3Rule) << what.toStdString();
    }
}

TEST_F(CtrlListTest, NothingOpensOrDownloadsWhileNotConnected)
{
    int opened = 0;
    QObject::connect(&list, &frmCtrlList::nodeOpened, [&opened] { ++opened; });
    list.tree()->setCurrentItem(list.node(2, GroupRunning));
    Q_EMIT list.tree()->itemDoubleClicked(list.node(2, GroupRunning), 0);
    list.cmdDownload_Click();
    EXPECT_EQ(opened, 0);
    ASSERT_EQ(platform->boxes.size(), 2);
    EXPECT_EQ(platform->boxes[0].text, "Please Connect Oscilloscope First!");
    EXPECT_EQ(list.SelectedPath(), "KV7200B\\Running Control\\Run|Stop [RUN]");
}

TEST_F(CtrlListTest, FileCommandsAskBeforeLosingChanges)
{
    QTemporaryDir dir;
    QStringList named;
    QObject::connect(&list, &frmCtrlList::ctrlFileNamed, [&named](const QString& path) { named << path; });
    CtrlData.TimeDiv = QStringLiteral("2.000ms");
    CtrlDirty = true;
    platform->boxAnswers = {vbCancel};
    list.mnuNewCtrl_Click();
    EXPECT_EQ(CtrlData.TimeDiv, "2.000ms") << "Cancel keeps the record";
    EXPECT_EQ(platform->boxes.last().text, "Save the changes to the Control File? ");

    // Yes saves under a name from the dialog first, then New starts afresh.
    const QString path = dir.filePath("kept.rmt");
    platform->boxAnswers = {vbYes};
    platform->savePaths = {path};
    list.mnuNewCtrl_Click();
    ASSERT_EQ(platform->saveRequests.size(), 1);
    EXPECT_EQ(platform->saveRequests[0].title, "Save");
    EXPECT_EQ(CtrlData.TimeDiv, "1.000us");
    EXPECT_TRUE(CtrlFileName.isEmpty());

    list.OpenCtrl(path);
    EXPECT_EQ(CtrlData.TimeDiv, "2.000ms");
    EXPECT_EQ(list.node(2, GroupTimeBase)->text(0), "Time/Div [2.000ms]");
    EXPECT_EQ(named, QStringList({path, path})) << "saved, then opened";
}

} // namespace

namespace {

TEST_F(CtrlListTest, PatternDialogKeepsOneEdgeAndFillsTheRecord)
{
    PatternDlg dialog;
    QString summary;
    QObject::connect(&dialog, &PatternDlg::codeChanged, [&summary](const QString& text) { summary = text; });
    dialog.PresetPattern({1, 3, 0, 2, 0}, false);
    dialog.findChild<QRadioButton*>("Down_3")->click();
    dialog.findChild<QRadioButton*>("optExt5")->click();
    PatternCodes codes{};
    bool div5 = false;
    dialog.GetPattern(codes, div5);
    EXPECT_EQ(codes, (PatternCodes{1, 0, 0, 4, 0})) << "the edge on CH2 gave way";
    EXPECT_TRUE(div5);

    dialog.cmdOK_Click();
    EXPECT_EQ(BuildPatternString(), "1,9,1,3,0");
    EXPECT_EQ(summary, "X5DnXXH");
}

} // namespace
