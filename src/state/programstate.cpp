#include "state/programstate.h"

#include "acquire/acquirereset.h"
#include "analysis/datarecord.h"
#include "analysis/measurerecord.h"
#include "controller/ctrlstate.h"
#include "frame/framestate.h"
#include "link/linkstate.h"
#include "document/sheetstate.h"
#include "panel/panelstate.h"
#include "stored/memorywaveslot.h"
#include "stored/recordslot.h"
#include "text/language.h"
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
    ResetMeasureRecords();
    ResetLinkState();
    ResetWaveRefreshState();
    ResetFftPlaceholders();
    ResetPanelState();
    ResetMemoryWaveSlots();
    ResetRecordSlots();
}
