// The measure window, its limits dialog and the data window, offscreen: rows
// judged from a record, the dialog's guards and its OK rule, the data table's
// columns and row numbers, and the channel options following the instrument.
#include "frmwave_fixture.h"

#include "analysis/datarecord.h"
#include "analysis/frmData.h"
#include "analysis/frmMeasure.h"
#include "analysis/frmPassFailed.h"
#include "platform/testplatform.h"
#include "state/programstate.h"
#include "wave/wavechannels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace {

constexpr int PeriodRow = 11;
constexpr int PeriodSlot = 10;
constexpr int VmaxSlot = 1;

class AnalysisWindowTest : public WaveWindowTest {
  protected:
    AnalysisWindowTest()
    {
        InstrumentDisplaySwitches = [] { return DisplaySwitches{false, true, true, false, false}; };
    }
    static QStringList rowTexts(QTreeWidget* view, int row)
    {
        QStringList texts;
        for (int column = 0; column < view->columnCount(); ++column)
            texts << view->topLevelItem(row)->text(column);
        return texts;
    }
};

TEST_F(AnalysisWindowTest, MeasureRowsShowPassAndFail)
{
    MeasureRecord& record = MeasureRecords[2];
    record.HasData = true;
    record.Legend = "CH2 1.00V";
    record.Items[0] = {"2.000V", true, 3.0, 1.0, {}};
    record.Items[1] = {"1.000V", true, 0.5, 0.0, {}};
    record.Items[7] = {"9.9E+37", false, 0, 0, {}};
    frmMeasure* window = CreateMeasureWindow(&area, 2);
    QCoreApplication::processEvents();
    auto* view = Named<QTreeWidget>(window, "MeasureView");
    ASSERT_EQ(view->topLevelItemCount(), 18);
    EXPECT_EQ(rowTexts(view, 0), QStringList({"Vpp", "2.000V", "1.000V", "3.000V", "Pass"}));
    EXPECT_EQ(rowTexts(view, 1),
              QStringList({"Vmax", "1.000V", "0.000uV", "500.000mV", "Fail [Over Limit]"}));
    EXPECT_EQ(rowTexts(view, 10), QStringList({"Frequency", "9.9E+37", "", "", ""}));
    EXPECT_EQ(Named<QLabel>(window, "SettingLabel")->text(), "CH2 1.00V");
    EXPECT_TRUE(record.Shown);
    // The options follow the instrument: CH1 off, CH2 the first shown.
    EXPECT_FALSE(Named<QRadioButton>(window, "OptionCH_0")->isEnabled());
    EXPECT_TRUE(Named<QRadioButton>(window, "OptionCH_1")->isChecked());
    EXPECT_EQ(window->selectedChannel(), 2);
}

TEST_F(AnalysisWindowTest, DataTableNumbersRowsFromOneAndAddsThePeakColumn)
{
    frmData* window = CreateDataWindow(&area, 1);
    QCoreApplication::processEvents();
    auto* view = Named<QTreeWidget>(window, "MeasureView");
    EXPECT_EQ(view->topLevelItemCount(), 1000);
    EXPECT_EQ(view->columnCount(), 3);
    DataRecord& record = DataRecords[1];
    record = DataRecord{};
    record.HasData = true;
    record.Count = 4;
    record.Start = 2;
    record.End = 3;
    record.IsPeak = true;
    record.Times = record.Voltages = record.Voltages2 = DataColumn(20);
    for (int index = 5; index <= 8; ++index) {
        record.Times[size_t(index)] = QStringLiteral("t%1").arg(index);
        record.Voltages[size_t(index)] = QStringLiteral("v%1").arg(index);
        record.Voltages2[size_t(index)] = QStringLiteral("w%1").arg(index);
    }
    window->ShowTable();
    ASSERT_EQ(view->topLevelItemCount(), 4);
    EXPECT_EQ(view->headerItem()->text(3), "Voltage2[V]");
    EXPECT_EQ(rowTexts(view, 0), QStringList({"1", "t5", "v5", "w5"}));
    EXPECT_EQ(rowTexts(view, 3), QStringList({"4", "t8", "v8", "w8"}));
    Named<QRadioButton>(window, "OptionCH_2")->click();
    EXPECT_EQ(record.Channel, "CH3");
}

class PassFailedTest : public AnalysisWindowTest {
  protected:
    void SetUp() override
    {
        MeasureRecords[0].Items[PeriodSlot] = {"1.000ms", true, 2e-3, 1.23456e-3, {}};
        dialog = std::make_unique<frmPassFailed>(0, "Measure0");
        dialog->Timer1_Timer();
        combo = Named<QComboBox>(dialog.get(), "MTypeCombo");
        under = Named<QLineEdit>(dialog.get(), "UnderNum");
        over = Named<QLineEdit>(dialog.get(), "OverNum");
        enabled = Named<QCheckBox>(dialog.get(), "EnabledChk");
    }
    const MeasureItem& item(int slot) const { return dialog->copy().Items[size_t(slot)]; }
    // Enables the selected item and puts both its limits in volts.
    void enableSelected()
    {
        if (!enabled->isChecked()) enabled->click();
        Named<QComboBox>(dialog.get(), "UnderUnit")->setCurrentText("V");
        Named<QComboBox>(dialog.get(), "OverUnit")->setCurrentText("V");
    }

    std::unique_ptr<frmPassFailed> dialog;
    QComboBox* combo = nullptr;
    QLineEdit* under = nullptr;
    QLineEdit* over = nullptr;
    QCheckBox* enabled = nullptr;
};

TEST_F(PassFailedTest, TypingSetsTheLimitAndAMinusAloneWaits)
{
    EXPECT_EQ(dialog->windowTitle(), "Pass & Fail Setting [Measure0]");
    EXPECT_EQ(combo->count(), 18);
    EXPECT_FALSE(under->isEnabled()) << "Vpp starts disabled";
    enableSelected();
    EXPECT_TRUE(under->isEnabled());
    under->setText("-");
    EXPECT_TRUE(platform->boxes.isEmpty());
    EXPECT_EQ(item(0).UnderLimit, 0);
    under->setText("-2.5");
    EXPECT_DOUBLE_EQ(item(0).UnderLimit, -2.5);
    Named<QComboBox>(dialog.get(), "UnderUnit")->setCurrentText("mV");
    EXPECT_DOUBLE_EQ(item(0).UnderLimit, -2.5e-3);
    over->setText("1x");
    ASSERT_EQ(platform->boxes.size(), 1);
    EXPECT_EQ(platform->boxes[0].text, "Invalid Numeric!");
    EXPECT_EQ(platform->boxes[0].style & 0xF0, 16);
    EXPECT_TRUE(over->text().isEmpty());
}

TEST_F(PassFailedTest, AnOverLimitBelowTheUnderLimitPullsItDown)
{
    enableSelected();
    under->setText("3");
    over->setText("2");
    EXPECT_DOUBLE_EQ(item(0).OverLimit, 2);
    EXPECT_DOUBLE_EQ(item(0).UnderLimit, 2);
    EXPECT_EQ(under->text(), "2");
}

TEST_F(PassFailedTest, SwitchingFamilyFiresNoChangeHandler)
{
    combo->setCurrentIndex(PeriodRow);
    EXPECT_EQ(under->text(), "1.235");
    EXPECT_EQ(Named<QComboBox>(dialog.get(), "UnderUnit")->currentText(), "ms");
    EXPECT_EQ(item(PeriodSlot).UnderLimit, 1.23456e-3) << "the shown text must not be parsed back";
    combo->setCurrentIndex(0);
    EXPECT_EQ(item(PeriodSlot).UnderLimit, 1.23456e-3);
}

TEST_F(PassFailedTest, OkChecksOnlyVpp)
{
    // A crossed pair on Vmax doesn't keep the dialog open ...
    dialog->show();
    combo->setCurrentIndex(1);
    enableSelected();
    MeasureRecords[0].Items[VmaxSlot].OverLimit = 0;
    over->setText("1");
    under->setText("5");
    Named<QPushButton>(dialog.get(), "OKButton")->click();
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_DOUBLE_EQ(MeasureRecords[0].Items[VmaxSlot].UnderLimit, 5);
    EXPECT_TRUE(MeasureRecords[0].Items[VmaxSlot].Enabled);

    // ... while one on Vpp does, even with another item selected.
    MeasureRecords[0].Items[0] = {"", true, 1, 4, {}};
    frmPassFailed second(0, "Measure0");
    second.Timer1_Timer();
    second.show();
    Named<QComboBox>(&second, "MTypeCombo")->setCurrentIndex(1);
    Named<QPushButton>(&second, "OKButton")->click();
    EXPECT_TRUE(second.isVisible());
    EXPECT_DOUBLE_EQ(MeasureRecords[0].Items[0].UnderLimit, 4) << "nothing is written back";
}

} // namespace
