#pragma once
// The connection lamp of the main window (picLED_ON / picLED_OFF). The link
// only says whether it is lit; the window that shows it listens here.

#include <functional>

// Whether the lamp was last turned on.
extern bool LinkLampOn;
// Called with the new state each time the link turns the lamp on or off.
extern std::function<void(bool on)> LinkLampChanged;

void SetLinkLamp(bool on);

// The link is gone: the lamp goes off and Connected is cleared, so every later
// send and read is a silent no-op. The session stays open.
void LinkLost();
