#include "mainwindowfixture.h"

#include "acquire/waverecord.h"
#include "analysis/datarecord.h"
#include "analysis/frmMeasure.h"
#include "analysis/measurerecord.h"
#include "document/sheetstate.h"
#include "link/linkstate.h"
#include "sheet/frmDataSheetTree.h"
#include "sheet/frmSheetWindows.h"
#include "wave/waverefresh.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <QTreeWidget>

namespace {

class SheetTreeTest : public MainWindowTest {
  protected:
    void SetUp() override
    {
        MainWindowTest::SetUp();
        load();
        sheet = window->dataSheetTree();
        tree = sheet->tree();
        test->clearRecords();
    }

    void addWaves(int count)
    {
        for (int i = 0; i < count; ++i)
            find("AddNewWaveform")->trigger();
    }
    QTreeWidgetItem* root() const { return tree->topLevelItem(0); }
    QStringList nodeTexts() const
    {
        QStringList texts;
        for (int i = 0; root() && i < root()->childCount(); ++i)
            texts << root()->child(i)->text(0);
        return texts;
    }
    QStringList windowTags(bool kinds = false) const
    {
        QStringList tags;
        for (QMdiSubWindow* child : window->mdiArea()->subWindowList())
            tags << (kinds ? child->widget()->objectName() + " " : QString()) +
                        child->widget()->windowTitle() + "=" + QString::number(WindowTag(child));
        return tags;
    }

    frmDataSheetTree* sheet = nullptr;
    QTreeWidget* tree = nullptr;
};

TEST_F(SheetTreeTest, TheToolbarAddsAWaveWindowUnderTheNewSheetOnly)
{
    find("AddNewWaveform")->trigger();
    ASSERT_EQ(test->boxes.size(), 1);
    EXPECT_EQ(test->boxes[0].text, "Please Open or Creat a Data Sheet First!");
    EXPECT_TRUE(window->mdiArea()->subWindowList().isEmpty());
    EXPECT_EQ(tree->topLevelItemCount(), 0);
    test->clearRecords();
    find("mnuNewDataSheet")->trigger();
    EXPECT_EQ(root()->text(0), "Untitle");
    EXPECT_EQ(window->windowTitle(), "Selvane - Untitle");
    find("AddNewWaveform")->trigger();
    EXPECT_EQ(nodeTexts(), QStringList{"Wave0"});
    EXPECT_EQ(tree->currentItem(), root()->child(0));
    ASSERT_EQ(window->mdiArea()->subWindowList().size(), 1);
    QMdiSubWindow* child = window->mdiArea()->subWindowList().first();
    EXPECT_EQ(child->widget()->objectName(), "frmWave");
    EXPECT_EQ(windowTags(), QStringList{"Wave0=0"});
    EXPECT_EQ(window->mdiArea()->activeSubWindow(), child);
    EXPECT_TRUE(test->boxes.isEmpty());
}

TEST_F(SheetTreeTest, RemovingTheMiddleWaveRenumbersTheLaterTags)
{
    find("mnuNewDataSheet")->trigger();
    addWaves(3);
    tree->setCurrentItem(root()->child(1));
    find("mnuRemove")->trigger();
    EXPECT_EQ(nodeTexts(), QStringList({"Wave0", "Wave2"}));
    QCoreApplication::processEvents();
    EXPECT_EQ(windowTags(), QStringList({"Wave0=0", "Wave2=1"}));
    EXPECT_EQ(SheetSlotNames[KindIndex(SheetKind::Wave)].size(), 2);
    EXPECT_TRUE(test->boxes.isEmpty()) << "a child goes without a question";
}

TEST_F(SheetTreeTest, AWaveWindowThatRefusesToCloseKeepsItsNodeAndSlot)
{
    find("mnuNewDataSheet")->trigger();
    addWaves(2);
    WaveRecords[0].DateText = "first";
    tree->setCurrentItem(root()->child(0));
    Connecting = true; // a wave window won't close while a connection is being made
    find("mnuRemove")->trigger();
    Connecting = false;
    EXPECT_EQ(nodeTexts(), QStringList({"Wave0", "Wave1"}));
    EXPECT_EQ(windowTags(), QStringList({"Wave0=0", "Wave1=1"}));
    EXPECT_EQ(WaveRecords[0].DateText, "first");
}

TEST_F(SheetTreeTest, TheRootRefusesRenameAndAChildTakesItsNewName)
{
    find("mnuNewDataSheet")->trigger();
    find("AddNewMeasure")->trigger();
    tree->setCurrentItem(root());
    find("mnuRename")->trigger();
    ASSERT_EQ(test->boxes.size(), 1);
    EXPECT_EQ(test->boxes[0].text, "Name of Root Can't Change!");
    EXPECT_EQ(root()->text(0), "Untitle");
    root()->child(0)->setText(0, "Supply rail");
    EXPECT_EQ(SheetSlotNames[KindIndex(SheetKind::Measure)], QStringList{"Supply rail"});
    EXPECT_EQ(sheet->childWindow(SheetKind::Measure, 0)->widget()->windowTitle(), "Supply rail");
}

TEST_F(SheetTreeTest, ThePopupNamesTheNodeUnderTheMouse)
{
    find("mnuNewDataSheet")->trigger();
    find("AddNewData")->trigger();
    const QRect place = tree->visualItemRect(root()->child(0));
    tree->setCurrentItem(root());
    Q_EMIT tree->customContextMenuRequested(place.center());
    EXPECT_EQ(find("mnuRemove")->text(), "&Remove(Data0)");
    EXPECT_EQ(find("mnuRename")->text(), "Re&name(Data0)");
    EXPECT_EQ(tree->currentItem(), root()->child(0));
    find<QMenu>("mnuDataSheet")->close();
}

TEST_F(SheetTreeTest, RemovingTheRootClosesTheSheetUnlessCancelled)
{
    find("mnuNewDataSheet")->trigger();
    addWaves(2);
    find("AddNewRecord")->trigger();
    tree->setCurrentItem(root());
    test->boxAnswers = {vbCancel, vbNo};
    find("mnuRemove")->trigger();
    EXPECT_EQ(nodeTexts().size(), 3);
    find("mnuRemove")->trigger();
    ASSERT_EQ(test->boxes.size(), 2);
    EXPECT_EQ(test->boxes[1].text, "Save the changes to the Data Sheet File? ");
    QCoreApplication::processEvents();
    EXPECT_TRUE(window->mdiArea()->subWindowList().isEmpty());
    EXPECT_EQ(tree->topLevelItemCount(), 0);
    EXPECT_FALSE(DataSheetDirty);
    EXPECT_EQ(window->windowTitle(), "Selvane");
}

// The close box runs the wave window's unload: refused during a transfer,
// otherwise interval refresh stops and the window goes; its node opens it anew.
TEST_F(SheetTreeTest, TheCloseBoxUnloadsTheWindowAndItsNodeOpensItAnew)
{
    find("mnuNewDataSheet")->trigger();
    addWaves(2);
    QMdiSubWindow* first = sheet->childWindow(SheetKind::Wave, 0);
    QCoreApplication::processEvents();
    ASSERT_TRUE(WaveRecords[0].WindowOpen);
    Connecting = true;
    EXPECT_FALSE(first->close());
    Connecting = false;
    AutoRefreshRunning = WaveRecords[0].AutoRefreshing = true;
    RefreshingWaveSlot = 0;
    EXPECT_TRUE(first->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(sheet->childWindow(SheetKind::Wave, 0), nullptr);
    EXPECT_FALSE(WaveRecords[0].WindowOpen);
    EXPECT_FALSE(AutoRefreshRunning || WaveRecords[0].AutoRefreshing);
    EXPECT_EQ(nodeTexts(), QStringList({"Wave0", "Wave1"}));

    tree->setCurrentItem(root()->child(0));
    QMdiSubWindow* again = sheet->childWindow(SheetKind::Wave, 0);
    ASSERT_NE(again, nullptr);
    EXPECT_TRUE(again->isVisible());
    EXPECT_EQ(window->mdiArea()->activeSubWindow(), again);
    EXPECT_EQ(windowTags(), QStringList({"Wave1=1", "Wave0=0"}));
}

TEST_F(SheetTreeTest, SortedOrdersTheNodesByName)
{
    find("mnuNewDataSheet")->trigger();
    find("AddNewWaveform")->trigger();
    find("AddNewData")->trigger();
    find("AddNewMeasure")->trigger();
    find("mnuSorted")->trigger();
    EXPECT_TRUE(SheetSorted);
    EXPECT_EQ(nodeTexts(), QStringList({"Data0", "Measure0", "Wave0"}));
    root()->child(2)->setText(0, "Alpha");
    EXPECT_EQ(nodeTexts(), QStringList({"Alpha", "Data0", "Measure0"}));
}

TEST_F(SheetTreeTest, ASavedSheetOpensAgainWithItsWindows)
{
    find("mnuSaveDataSheet")->trigger();
    EXPECT_TRUE(test->saveRequests.isEmpty()) << "without a sheet there is nothing to save";
    find("mnuNewDataSheet")->trigger();
    addWaves(2);
    find("AddNewMeasure")->trigger();
    WaveRecords[1].TriggerMode = QStringLiteral("ALTERNATION");
    QTemporaryDir dir;
    const QString path = dir.filePath("bench.kvs");
    test->savePaths << path;
    find("mnuFileSaveDataSheet")->trigger();
    ASSERT_EQ(test->saveRequests.size(), 1) << "a sheet without a file is saved as a new one";
    EXPECT_EQ(test->saveRequests[0].title, "Save As");
    EXPECT_EQ(test->saveRequests[0].filter, "Data Sheet Files (*.kvs)");
    EXPECT_FALSE(DataSheetDirty);

    find("mnuNewDataSheet")->trigger();
    WaveRecords[1].TriggerMode.clear();
    test->openPaths << path;
    sheet->mnuOpenDataSheet_Click();
    ASSERT_EQ(test->openRequests.size(), 1);
    EXPECT_EQ(test->openRequests[0].title, "Open");
    EXPECT_EQ(nodeTexts(), QStringList({"Wave0", "Wave1", "Measure0"}));
    EXPECT_EQ(window->mdiArea()->subWindowList().size(), 3);
    EXPECT_EQ(WaveRecords[1].TriggerMode, "ALTERNATION");
    EXPECT_EQ(SheetFileName, path);
    EXPECT_TRUE(test->boxes.isEmpty());
}

} // namespace

TEST_F(SheetTreeTest, StoredKindsAskForTheirFileAndACancelLeavesTheEmptyWindow)
{
    find("mnuNewDataSheet")->trigger();
    find("AddNewMemoryWaveform")->trigger();
    find("AddNewRecord")->trigger();
    ASSERT_EQ(test->openRequests.size(), 2);
    EXPECT_EQ(test->openRequests[0].title, "Open Waveform Files");
    EXPECT_EQ(test->openRequests[0].filter, "Waveform Files (*.wfm)");
    EXPECT_EQ(test->openRequests[1].title, "Open Record Files");
    EXPECT_EQ(test->openRequests[1].filter, "Record Files (*.rcd)");
    EXPECT_EQ(nodeTexts().size(), 2);
    EXPECT_EQ(window->mdiArea()->subWindowList().size(), 2);
}

// Measure and data windows are the real windows, each new one on a clean slot;
// removing one moves the later records and tags down.
TEST_F(SheetTreeTest, AnalysisWindowsStartCleanAndMoveDownOnARemoval)
{
    find("mnuNewDataSheet")->trigger();
    MeasureRecords[0].HasData = true;
    MeasureRecords[0].Items[0].Enabled = true;
    DataRecords[0].HasData = true;
    find("AddNewMeasure")->trigger();
    find("AddNewData")->trigger();
    EXPECT_EQ(windowTags(true), QStringList({"frmMeasure Measure0=0", "frmData Data0=0"}));
    EXPECT_FALSE(MeasureRecords[0].HasData);
    EXPECT_FALSE(MeasureRecords[0].Items[0].Enabled);
    EXPECT_EQ(MeasureRecords[0].Title, "Measure0");
    EXPECT_FALSE(DataRecords[0].HasData);

    for (int n = 0; n < 2; ++n)
        find("AddNewMeasure")->trigger();
    MeasureRecords[2].Items[15].OverLimit = 7.5;
    tree->setCurrentItem(root()->child(0));
    find("mnuRemove")->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(windowTags(true),
              QStringList({"frmData Data0=0", "frmMeasure Measure1=0", "frmMeasure Measure2=1"}));
    EXPECT_EQ(MeasureRecords[1].Items[15].OverLimit, 7.5);
    EXPECT_EQ(MeasureWindowOf(1)->windowTitle(), "Measure2");
    EXPECT_EQ(MeasureWindowOf(2), nullptr);
}
