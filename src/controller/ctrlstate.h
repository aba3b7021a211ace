#pragma once
// The control file in use: its path and whether the settings tree has changes
// that are not saved.

#include <QString>

extern QString CtrlFileName;
extern bool CtrlDirty;

// Whether each channel is shown (index 1 to 4), as the settings tree holds it:
// a display word of either language. Starts as a new control file has it: CH1 on.
extern QString ChDisplay[5];

void ResetCtrlState();

// Lets the wave windows follow the tree's display switches (math from the link).
void InstallTreeDisplaySwitches();
