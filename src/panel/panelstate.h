#pragma once
// The flags of the virtual front panel's two windows, shared with the rest of
// the program: the screen loop runs while both panel flags are on.

struct VirtualPanelFlags {
    bool PanelOpen = false;    // frmV_Panel is up
    bool PanelRunning = false; // its screen loop fetches pictures
    bool KeyboardOpen = false; // frmV_Key is up
};

extern VirtualPanelFlags PanelFlags;

// Both flags of the panel on: what ReadDisplayData asks before trying again.
bool PanelRunsScreen();

void ResetPanelState();
