#pragma once
// The refresh state shared by the wave windows: the interval loop's clock word,
// whether a loop runs, and which window last started a refresh.

#include <QString>
#include <functional>

extern int RefreshTick; // the interval Timer2 last ticked with; the loop reads when it equals RefreshInterval
extern bool AutoRefreshRunning; // an interval refresh loop runs
extern int RefreshingWaveSlot;  // the slot of the window that last started a refresh; -1 none

// Other work that a refresh must not cut into (a data sheet being read, a record
// being replayed); installed by those subsystems. Unset: nothing holds refresh off.
extern std::function<bool()> RefreshHeldOff;
bool RefreshIsHeldOff();

// The caption of the reading frame during a wave window's read.
QString WaveLoadingCaption(int language);

// Also forgets the listeners the refresh consults (hold-off, the instrument's display switches).
void ResetWaveRefreshState();
