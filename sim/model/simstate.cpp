#include "model/simstate.h"

SimState powerOnState()
{
    SimState state;
    // CH1 and CH2 on, apart from each other; CH3 and CH4 wait switched off.
    state.channels[0].display = true;
    state.channels[0].position = 2.0;
    state.channels[1].display = true;
    state.channels[1].position = -2.0;
    state.channels[3].position = -3.0;
    state.timebase.windowA = state.timebase.main;
    state.timebase.windowB = state.timebase.main;
    return state;
}
