#include "link/linkstate.h"
#include "platform/testplatform.h"
#include "settings/softwaresettings.h"
#include "support/freshstate.h"

#include <gtest/gtest.h>

namespace {

class SoftwareSettings : public FreshStateTest {
  protected:
    ScopedTestPlatform test;
};

TEST_F(SoftwareSettings, AFirstStartGetsTheDefaults)
{
    TransportType = 2;
    BaudRate = "300";
    RefreshType = RefreshAuto;
    LoadSoftwareSetting();
    EXPECT_FALSE(StartupCheckHardware);
    EXPECT_FALSE(StartupLoadSheet);
    EXPECT_FALSE(StartupLoadCtrl);
    EXPECT_EQ(TransportType, 0);
    EXPECT_EQ(ComPort, 1);
    EXPECT_EQ(BaudRate, "9600");
    EXPECT_EQ(GpibAddress, 7);
    EXPECT_EQ(RefreshType, "Single");
    EXPECT_EQ(RefreshInterval, 1000);
    EXPECT_EQ(MainPlacement.left, 1000);
    EXPECT_EQ(MainPlacement.top, 1000);
    EXPECT_EQ(MainPlacement.width, 6500);
    EXPECT_EQ(MainPlacement.height, 6500);
    LoadProgressPlacement();
    EXPECT_EQ(ProgressPlacement.left, 500);
    EXPECT_EQ(ProgressPlacement.top, 800);
}

struct StoredKey {
    const char* section;
    const char* key;
    const char* text; // a value unlike the default
};

const StoredKey everyKey[] = {
    {"General_KV7200B", "StartupCheckHardware", "-1"},
    {"General_KV7200B", "StartupLoadSheet", "-1"},
    {"General_KV7200B", "StartupLoadCtrl", "-1"},
    {"IO Settings_KV7200B", "ScopeIOType", "2"},
    {"IO Settings_KV7200B", "COM_Port", "4"},
    {"IO Settings_KV7200B", "BaudRate", "38400"},
    {"IO Settings_KV7200B", "GPIB_Addr", "12"},
    {"Refresh_KV7200B", "Refresh Type", "Auto"},
    {"Refresh_KV7200B", "Refresh Interval", "5000"},
    {"Settings_KV7200B", "MainLeft", "1515"},
    {"Settings_KV7200B", "MainTop", "30"},
    {"Settings_KV7200B", "MainWidth", "9000"},
    {"Settings_KV7200B", "MainHeight", "7500"},
};

TEST_F(SoftwareSettings, EveryKeyRoundTripsThroughItsVariable)
{
    for (const StoredKey& k : everyKey)
        SaveSetting(k.section, k.key, k.text);
    LoadSoftwareSetting();
    EXPECT_TRUE(StartupCheckHardware && StartupLoadSheet && StartupLoadCtrl);
    EXPECT_EQ(TransportType, 2);
    EXPECT_EQ(ComPort, 4);
    EXPECT_EQ(BaudRate, "38400");
    EXPECT_EQ(GpibAddress, 12);
    EXPECT_EQ(RefreshType, "Auto");
    EXPECT_EQ(RefreshInterval, 5000);
    EXPECT_EQ(MainPlacement.width, 9000);

    // Wipe the store and write it back from the variables alone.
    for (const StoredKey& k : everyKey)
        DeleteSetting(k.section, k.key);
    SaveSoftwareSetting();
    for (const StoredKey& k : everyKey)
        EXPECT_EQ(GetSetting(k.section, k.key), k.text) << k.key;
}

TEST_F(SoftwareSettings, ANonNumberLeavesItsVariableZeroAndTheLoadGoesOn)
{
    SaveSetting("IO Settings_KV7200B", "COM_Port", "COM3");
    SaveSetting("Refresh_KV7200B", "Refresh Interval", "fast");
    SaveSetting("Settings_KV7200B", "MainHeight", "8000");
    SaveSetting("General_KV7200B", "StartupLoadCtrl", "True");
    LoadSoftwareSetting();
    EXPECT_TRUE(StartupLoadCtrl) << "a flag written as True text still reads";
    EXPECT_EQ(ComPort, 0);
    EXPECT_EQ(RefreshInterval, 0);
    EXPECT_EQ(GpibAddress, 7);
    EXPECT_EQ(MainPlacement.height, 8000);
}

TEST_F(SoftwareSettings, TheLanguageAndTheProgressWindowAreNotWrittenBySave)
{
    SaveSoftwareSetting();
    EXPECT_TRUE(GetAllSettings("Selvane_Language_KV7200B").isEmpty());
    EXPECT_EQ(GetSetting("Settings_KV7200B", "ProgressLeft"), QString());
}

} // namespace
