#include "panel/panelstate.h"

VirtualPanelFlags PanelFlags;

bool PanelRunsScreen()
{
    return PanelFlags.PanelOpen && PanelFlags.PanelRunning;
}

void ResetPanelState()
{
    PanelFlags = {};
}
