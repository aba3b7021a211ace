// Measure and data windows in a sheet: the real windows are made, a new one
// starts from a clean slot, and removing one moves the later records and tags.
#include "mainwindowfixture.h"

#include "analysis/datarecord.h"
#include "analysis/frmMeasure.h"
#include "analysis/measurerecord.h"
#include "sheet/frmDataSheetTree.h"
#include "sheet/frmSheetWindows.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTreeWidget>

namespace {

class SheetAnalysisTest : public MainWindowTest {
  protected:
    void SetUp() override
    {
        MainWindowTest::SetUp();
        load();
        find("mnuNewDataSheet")->trigger();
    }
    QStringList windows() const
    {
        QStringList names;
        for (QMdiSubWindow* child : window->mdiArea()->subWindowList())
            names << child->widget()->objectName() + " " + child->widget()->windowTitle() + "=" +
                         QString::number(WindowTag(child));
        return names;
    }
};

TEST_F(SheetAnalysisTest, AddsRealWindowsOnCleanSlots)
{
    MeasureRecords[0].HasData = true;
    MeasureRecords[0].Items[0].Enabled = true;
    DataRecords[0].HasData = true;
    find("AddNewMeasure")->trigger();
    find("AddNewData")->trigger();
    EXPECT_EQ(windows(), QStringList({"frmMeasure Measure0=0", "frmData Data0=0"}));
    EXPECT_FALSE(MeasureRecords[0].HasData);
    EXPECT_FALSE(MeasureRecords[0].Items[0].Enabled);
    EXPECT_EQ(MeasureRecords[0].Title, "Measure0");
    EXPECT_FALSE(DataRecords[0].HasData);
}

TEST_F(SheetAnalysisTest, RemovingAMeasureWindowMovesTheLaterRecordsDown)
{
    for (int n = 0; n < 3; ++n)
        find("AddNewMeasure")->trigger();
    MeasureRecords[2].Items[15].OverLimit = 7.5;
    QTreeWidget* tree = window->dataSheetTree()->tree();
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    find("mnuRemove")->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(windows(), QStringList({"frmMeasure Measure1=0", "frmMeasure Measure2=1"}));
    EXPECT_EQ(MeasureRecords[1].Items[15].OverLimit, 7.5);
    EXPECT_EQ(MeasureWindowOf(1)->windowTitle(), "Measure2");
    EXPECT_EQ(MeasureWindowOf(2), nullptr);
}

} // namespace
