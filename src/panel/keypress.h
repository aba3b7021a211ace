#pragma once
// Presses of front-panel keys without a window: a whole press (or hold) of a
// control of the key table, and the key operations other windows call.

#include "panel/keytable.h"

// A press of the control as the window of `set` sends it: a plain or click key
// once; a repeat key pressed, held for `ticks` ticks of ButtonPressTimer and
// released (with the click after the release where that window has one).
void HoldKey(const KeyRef& key, KeySet set, int ticks = 0);

// The keys other windows press without a click of their own.
enum class PanelKey : unsigned char {
    Acquire,
    Auto,
    Ch1,
    Ch2,
    Cursor,
    Display,
    F1,
    F2,
    F3,
    F4,
    F5,
    Math,
    Measure,
    Ref,
    Run,
    Storage,
    MenuTime,
    TrigTo50,
    TrigForce,
    TrigMenu,
    Utility,
};
// Sends ":KEY" and the key's piece (":KEY:TRIGFORCE" for TrigForce).
void PressPanelKey(PanelKey key);
