#include "wave/waverefresh.h"

#include "document/sheetstate.h"
#include "text/language.h"
#include "wave/wavechannels.h"

#include <QString>

int RefreshTick = 0;
bool AutoRefreshRunning = false;
int RefreshingWaveSlot = -1;

bool RefreshIsHeldOff()
{
    return SheetLoadBusy || RecordRunBusy;
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
    InstrumentDisplaySwitches = nullptr;
}
