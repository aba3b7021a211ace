#include "settings/softwaresettings.h"

#include "link/linkstate.h"
#include "platform/platform.h"

namespace {

// The values of a first start.
constexpr int defaultGpibAddress = 7;
constexpr int defaultRefreshInterval = 1000;
constexpr WindowPlacement defaultMain{1000, 1000, 6500, 6500};
constexpr WindowPlacement defaultProgress{500, 800, 0, 0};

} // namespace

bool StartupCheckHardware = false;
bool StartupLoadSheet = false;
bool StartupLoadCtrl = false;
int GpibAddress = defaultGpibAddress;
QString RefreshType = RefreshSingle;
int RefreshInterval = defaultRefreshInterval;
WindowPlacement MainPlacement = defaultMain;
WindowPlacement ProgressPlacement = defaultProgress;

namespace {

const QString general = QStringLiteral("General_KV7200B");
const QString io = QStringLiteral("IO Settings_KV7200B");
const QString refresh = QStringLiteral("Refresh_KV7200B");
const QString windows = QStringLiteral("Settings_KV7200B");

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
    StartupCheckHardware = readFlag(general, "StartupCheckHardware");
    StartupLoadSheet = readFlag(general, "StartupLoadSheet");
    StartupLoadCtrl = readFlag(general, "StartupLoadCtrl");
    TransportType = GetSettingInt(io, "ScopeIOType", 0);
    ComPort = GetSettingInt(io, "COM_Port", 1);
    BaudRate = GetSetting(io, "BaudRate", QStringLiteral("9600"));
    GpibAddress = GetSettingInt(io, "GPIB_Addr", defaultGpibAddress);
    RefreshType = GetSetting(refresh, "Refresh Type", RefreshSingle);
    RefreshInterval = GetSettingInt(refresh, "Refresh Interval", defaultRefreshInterval);
    MainPlacement.left = GetSettingInt(windows, "MainLeft", defaultMain.left);
    MainPlacement.top = GetSettingInt(windows, "MainTop", defaultMain.top);
    MainPlacement.width = GetSettingInt(windows, "MainWidth", defaultMain.width);
    MainPlacement.height = GetSettingInt(windows, "MainHeight", defaultMain.height);
}

void SaveSoftwareSetting()
{
    writeFlag(general, "StartupCheckHardware", StartupCheckHardware);
    writeFlag(general, "StartupLoadSheet", StartupLoadSheet);
    writeFlag(general, "StartupLoadCtrl", StartupLoadCtrl);
    writeInt(io, "ScopeIOType", TransportType);
    writeInt(io, "COM_Port", ComPort);
    SaveSetting(io, "BaudRate", BaudRate);
    writeInt(io, "GPIB_Addr", GpibAddress);
    SaveSetting(refresh, "Refresh Type", RefreshType);
    writeInt(refresh, "Refresh Interval", RefreshInterval);
    writeInt(windows, "MainLeft", MainPlacement.left);
    writeInt(windows, "MainTop", MainPlacement.top);
    writeInt(windows, "MainWidth", MainPlacement.width);
    writeInt(windows, "MainHeight", MainPlacement.height);
}

void LoadProgressPlacement()
{
    ProgressPlacement.left = GetSettingInt(windows, "ProgressLeft", defaultProgress.left);
    ProgressPlacement.top = GetSettingInt(windows, "ProgressTop", defaultProgress.top);
}

void ResetSoftwareSettings()
{
    StartupCheckHardware = StartupLoadSheet = StartupLoadCtrl = false;
    GpibAddress = defaultGpibAddress;
    RefreshType = RefreshSingle;
    RefreshInterval = defaultRefreshInterval;
    MainPlacement = defaultMain;
    ProgressPlacement = defaultProgress;
}
