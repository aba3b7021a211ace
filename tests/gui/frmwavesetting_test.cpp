// The FFT dialog: which wave windows it can target, what a target allows, and
// what OK leaves in the target's record and window.
#include "frmwave_fixture.h"
#include "guitest.h"

#include "acquire/waverecord.h"
#include "sheet/sheetslots.h"
#include "wave/fftsetting.h"
#include "wave/frmWaveSetting.h"

#include <QComboBox>
#include <QMdiSubWindow>
#include <QPushButton>
#include <algorithm>

namespace {

QStringList entries(const QComboBox* combo)
{
    QStringList items;
    for (int i = 0; i < combo->count(); ++i)
        items.append(combo->itemText(i));
    return items;
}

class WaveSettingTest : public WaveWindowTest {
  protected:
    // A new sheet with wave windows Wave0 ... of these records.
    static void sheetWithWaves(int count)
    {
        OpenNewSheet();
        for (int i = 0; i < count; ++i)
            ClaimSlot(SheetKind::Wave);
    }
    frmWaveSetting& dialog()
    {
        setting = std::make_unique<frmWaveSetting>(&area);
        return *setting;
    }
    template <typename T> T* part(const char* name) const
    {
        return Named<T>(setting.get(), QString::fromLatin1(name));
    }
    std::unique_ptr<frmWaveSetting> setting;
};

TEST_F(WaveSettingTest, WithNoWaveWindowTheTargetIsNoneAndOkCantBePressed)
{
    WaveRecords[2].WaveTitle = "Wave2"; // of a sheet closed before: records keep their titles
    WaveRecords[2].HasData = true;
    dialog();
    EXPECT_EQ(entries(part<QComboBox>("TargetCombo")), QStringList{"None"});
    EXPECT_FALSE(part<QPushButton>("cmdOK")->isEnabled());
    EXPECT_EQ(entries(part<QComboBox>("WindowCombo")),
              (QStringList{"Rectangle", "Hanning", "Hamming", "Blackman"}));
    EXPECT_EQ(entries(part<QComboBox>("ScaleCombo")), (QStringList{"Vrms", "dBVrms"}));
    EXPECT_EQ(entries(part<QComboBox>("SourceCombo")), (QStringList{"CH1", "CH2"}));
}

struct TargetCase {
    const char* name;
    bool hasData;
    int lastChannel;
    bool ok;
    QStringList sources;
    bool sourceEnabled;
};

class TargetChoice : public WaveSettingTest, public ::testing::WithParamInterface<TargetCase> {};

TEST_P(TargetChoice, TheRecordDecidesOkAndTheSources)
{
    sheetWithWaves(1);
    WaveRecords[0].HasData = GetParam().hasData;
    WaveRecords[0].LastChannel = GetParam().lastChannel;
    dialog();
    EXPECT_EQ(part<QPushButton>("cmdOK")->isEnabled(), GetParam().ok);
    EXPECT_EQ(entries(part<QComboBox>("SourceCombo")), GetParam().sources);
    EXPECT_EQ(part<QComboBox>("SourceCombo")->isEnabled(), GetParam().sourceEnabled);
    EXPECT_EQ(setting->target(), GetParam().ok ? 0 : -1);
}

INSTANTIATE_TEST_SUITE_P(Records, TargetChoice,
                         ::testing::Values(TargetCase{"NoData", false, 1, false, {"CH1", "CH2"}, true},
                                           TargetCase{"LastCH1", true, 1, true, {"CH1"}, true},
                                           TargetCase{"LastCH2", true, 2, true, {"CH2"}, true},
                                           TargetCase{"LastCH3", true, 3, true, {"CH1", "CH2"}, true},
                                           TargetCase{"LastCH4", true, 4, true, {"CH1", "CH2"}, false},
                                           TargetCase{"NoChannel", true, 0, true, {"CH1", "CH2"}, true}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(WaveSettingTest, TheTargetListHoldsTheOpenSheetsWavesInSlotOrder)
{
    sheetWithWaves(2);
    WaveRecords[0].HasData = true;
    WaveRecords[5].WaveTitle = "Wave5"; // no window of the open sheet
    dialog();
    auto* target = part<QComboBox>("TargetCombo");
    EXPECT_EQ(entries(target), (QStringList{"Wave0", "Wave1"}));
    target->setCurrentIndex(1);
    setting->TargetCombo_Click();
    EXPECT_FALSE(part<QPushButton>("cmdOK")->isEnabled()) << "Wave1 has no data";
}

// Only a last channel of 4 touches the source list's state; other values leave it.
TEST_F(WaveSettingTest, AnotherTargetLeavesADisabledSourceList)
{
    sheetWithWaves(2);
    WaveRecords[0].HasData = WaveRecords[1].HasData = true;
    WaveRecords[0].LastChannel = 4;
    WaveRecords[1].LastChannel = 0;
    dialog();
    auto* source = part<QComboBox>("SourceCombo");
    ASSERT_FALSE(source->isEnabled());
    part<QComboBox>("TargetCombo")->setCurrentIndex(1);
    setting->TargetCombo_Click();
    EXPECT_FALSE(source->isEnabled());
    EXPECT_EQ(setting->target(), 1);
}

TEST_F(WaveSettingTest, OkMarksTheTargetAndOpensItsWindow)
{
    sheetWithWaves(7);
    WaveRecords[6].HasData = true;
    WaveRecords[6].LastChannel = 1;
    dialog();
    part<QComboBox>("TargetCombo")->setCurrentIndex(6);
    setting->TargetCombo_Click();
    part<QComboBox>("WindowCombo")->setCurrentIndex(2);
    part<QPushButton>("cmdOK")->click();

    EXPECT_EQ(setting->result(), QDialog::Accepted);
    const WaveArray& spectrum = WaveRecords[6].WaveFFT;
    ASSERT_EQ(spectrum.size(), 1024u);
    EXPECT_TRUE(std::all_of(spectrum.begin(), spectrum.end(), [](int v) { return v >= 0 && v <= 254; }));
    EXPECT_TRUE(FftPlaceholders[6].Placeholder);
    EXPECT_EQ(FftPlaceholders[6].WindowText, "Hamming");
    EXPECT_EQ(FftPlaceholders[6].Count, 1024);
    EXPECT_TRUE(FftPlaceholders[6].FullScreen);
    frmWave* opened = WaveWindowOf(6);
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->tag(), "6");
    EXPECT_EQ(opened->windowTitle(), "Wave6");
    EXPECT_EQ(area.subWindowList().size(), 1);

    dialog();
    part<QComboBox>("TargetCombo")->setCurrentIndex(6);
    setting->TargetCombo_Click();
    part<QPushButton>("cmdOK")->click();
    EXPECT_EQ(area.subWindowList().size(), 1) << "an open window is reused";
}

} // namespace
