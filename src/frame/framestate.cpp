#include "frame/framestate.h"

#include "frame/commstatus.h"
#include "settings/softwaresettings.h"

void ResetFrameState()
{
    ResetSoftwareSettings();
    ResetCommStatus();
}
