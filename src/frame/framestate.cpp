#include "frame/framestate.h"

#include "frame/commstatus.h"
#include "frame/softwaresettings.h"

void ResetFrameState()
{
    ResetSoftwareSettings();
    ResetCommStatus();
}
