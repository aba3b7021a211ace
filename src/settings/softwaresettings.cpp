#include "settings/softwaresettings.h"

#include "link/linkstate.h"
#include "platform/platform.h"

namespace {

// The values of a first start.
constexpr int DefaultGpibAddress = 7;
constexpr int DefaultRefreshInterval = 1000;
constexpr WindowPlacement DefaultMain{1000, 1000, 6500, 6500};
constexpr WindowPlacement DefaultProgress{500, 800, 0, 0};

} // namespace

bool StartupCheckHardware = false;
bool StartupLoadSheet = false;
bool StartupLoadCtrl = false;
int GpibAddress = DefaultGpibAddress;
QString RefreshType = RefreshSingle;
int RefreshInterval = DefaultRefreshInterval;
WindowPlacement MainPlacement = DefaultMain;
WindowPlacement ProgressPlacement = DefaultProgress;

namespace {

const QString GeneralSection = QStringLiteral("General_KV7200B");
const QString IoSection = QStringLiteral("IO Settings_KV7200B");
const QString RefreshSection = QStringLiteral("Refresh_KV7200B");
const QString WindowsSection = QStringLiteral("Settings_KV7200B");

// Flags are kept in the store as -1 and 0; a "True" written by hand reads as set.
bool readFlag(const QString& section, const QString& key)
{
    const QString text = GetSetting(section, key, QStringLiteral("0")).trimmed();
    return text.compare(QStringLiteral("True"), Qt::CaseInsensitive) == 0 ||
           GetSettingInt(section, key, 0) != 0;
}

void writeFlag(const QString& section, const QString& key, bool value)
{
    SaveSetting(section, key, value ? QStringLiteral("-1") : QStringLiteral("0"));
}

void writeInt(const QString& section, const QString& key, int value)
{
    SaveSetting(section, key, QString::number(value));
}

} // namespace

void LoadSoftwareSetting()
{
    StartupCheckHardware = readFlag(GeneralSection, "StartupCheckHardware");
    StartupLoadSheet = readFlag(GeneralSection, "StartupLoadSheet");
    StartupLoadCtrl = readFlag(GeneralSection, "StartupLoadCtrl");
    TransportType = GetSettingInt(IoSection, "ScopeIOType", 0);
    ComPort = GetSettingInt(IoSection, "COM_Port", 1);
    BaudRate = GetSetting(IoSection, "BaudRate", QStringLiteral("9600"));
    GpibAddress = GetSettingInt(IoSection, "GPIB_Addr", DefaultGpibAddress);
    RefreshType = GetSetting(RefreshSection, "Refresh Type", RefreshSingle);
    RefreshInterval = GetSettingInt(RefreshSection, "Refresh Interval", DefaultRefreshInterval);
    MainPlacement.left = GetSettingInt(WindowsSection, "MainLeft", DefaultMain.left);
    MainPlacement.top = GetSettingInt(WindowsSection, "MainTop", DefaultMain.top);
    MainPlacement.width = GetSettingInt(WindowsSection, "MainWidth", DefaultMain.width);
    MainPlacement.height = GetSettingInt(WindowsSection, "MainHeight", DefaultMain.height);
}

void SaveSoftwareSetting()
{
    writeFlag(GeneralSection, "StartupCheckHardware", StartupCheckHardware);
    writeFlag(GeneralSection, "StartupLoadSheet", StartupLoadSheet);
    writeFlag(GeneralSection, "StartupLoadCtrl", StartupLoadCtrl);
    writeInt(IoSection, "ScopeIOType", TransportType);
    writeInt(IoSection, "COM_Port", ComPort);
    SaveSetting(IoSection, "BaudRate", BaudRate);
    writeInt(IoSection, "GPIB_Addr", GpibAddress);
    SaveSetting(RefreshSection, "Refresh Type", RefreshType);
    writeInt(RefreshSection, "Refresh Interval", RefreshInterval);
    writeInt(WindowsSection, "MainLeft", MainPlacement.left);
    writeInt(WindowsSection, "MainTop", MainPlacement.top);
    writeInt(WindowsSection, "MainWidth", MainPlacement.width);
    writeInt(WindowsSection, "MainHeight", MainPlacement.height);
}

void LoadProgressPlacement()
{
    ProgressPlacement.left = GetSettingInt(WindowsSection, "ProgressLeft", DefaultProgress.left);
    ProgressPlacement.top = GetSettingInt(WindowsSection, "ProgressTop", DefaultProgress.top);
}

void ResetSoftwareSettings()
{
    StartupCheckHardware = StartupLoadSheet = StartupLoadCtrl = false;
    GpibAddress = DefaultGpibAddress;
    RefreshType = RefreshSingle;
    RefreshInterval = DefaultRefreshInterval;
    MainPlacement = DefaultMain;
    ProgressPlacement = DefaultProgress;
}
