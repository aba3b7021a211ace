#include "acquire/acquirereset.h"

#include "acquire/operation.h"
#include "acquire/readdatatable.h"
#include "acquire/readwavewindow.h"
#include "acquire/tabletext.h"
#include "acquire/wavebytes.h"
#include "acquire/waverecord.h"

void ResetAcquireState()
{
    ResetWaveRecords();
    ResetWaveBytes();
    ResetTableTexts();
    ResetOperationState();
    LastTableReading = TableReading{};
}
