#pragma once
// What the instrument's own screen shows for a state and a frame.

#include "acquisition.h"
#include "screenpicture.h"
#include "simstate.h"

ScreenPicture screenPictureOf(const SimState& state, const Frame& frame, bool waiting);
