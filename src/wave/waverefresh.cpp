#include "wave/waverefresh.h"

#include "text/language.h"
#include "wave/wavechannels.h"

#include <QString>

int RefreshTick = 0;
bool AutoRefreshRunning = false;
int RefreshingWaveSlot = -1;
std::function<bool()> RefreshHeldOff;

bool RefreshIsHeldOff()
{
    return RefreshHeldOff && RefreshHeldOff();
}

QString WaveLoadingCaption(int language)
{
    return IsChinese(language) ? QStringLiteral("波形数据数据下载中...")
                               : QStringLiteral("Waveform Data Loading...");
}

void ResetWaveRefreshState()
{
    RefreshTick = 0;
    AutoRefreshRunning = false;
    RefreshingWaveSlot = -1;
    RefreshHeldOff = nullptr;
    InstrumentDisplaySwitches = nullptr;
}
