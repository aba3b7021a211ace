#pragma once
// What the instrument's own screen shows for a state and a frame.

#include "model/acquisition.h"
#include "model/simstate.h"
#include "screen/screenpicture.h"

ScreenPicture screenPictureOf(const SimState& state, const Frame& frame, bool waiting);
