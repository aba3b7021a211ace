#pragma once
// The refresh state shared by the wave windows: the interval loop's clock word,
// whether a loop runs, and which window last started a refresh.

#include <QString>

extern int RefreshTick; // the interval Timer2 last ticked with; the loop reads when it equals RefreshInterval
extern bool AutoRefreshRunning; // an interval refresh loop runs
extern int RefreshingWaveSlot;  // the slot of the window that last started a refresh; -1 none

// A data sheet being read or a record replaying holds a refresh off.
bool RefreshIsHeldOff();

// The caption of the reading frame during a wave window's read.
QString WaveLoadingCaption(int language);

// Also forgets the instrument's display switches the refresh consults.
void ResetWaveRefreshState();
