#include "state/programstate.h"

#include "acquire/acquirereset.h"
#include "analysis/datarecord.h"
#include "controller/ctrlstate.h"
#include "frame/framestate.h"
#include "text/language.h"
#include "link/linkstate.h"
#include "sheet/sheetstate.h"
#include "wave/fftsetting.h"
#include "wave/waverefresh.h"

void ResetProgramState()
{
    ResetLanguageState();
    ResetFrameState();
    ResetSheetState();
    ResetCtrlState();
    ResetAcquireState();
    ResetDataRecords();
    ResetLinkState();
    ResetWaveRefreshState();
    ResetFftPlaceholders();
}
