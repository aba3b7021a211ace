#pragma once
// The control file in use: its path and whether the settings tree has changes
// that are not saved.

#include <QString>

extern QString CtrlFileName;
extern bool CtrlDirty;

void ResetCtrlState();
