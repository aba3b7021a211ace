#pragma once
// What the instrument puts in a waveform file when it stores its present
// frame: settings in the header, the acquisition memory as samples (see
// memoryCodes). In Roll the memory is a ring: the oldest step sits at the
// roll position, counted in time steps, and the newest just before it.

#include "files/wfmwriter.h"
#include "model/acquisition.h"
#include "model/simstate.h"

#include <QString>

struct WfmRequest {
    QString model = "KV7204B";
    // Pairs of channels share their memory, so CH1 (or CH2) and CH3 (or
    // CH4) each get 16,384 samples. Not available in alternate trigger.
    bool longMemory = false;
};

constexpr int WfmLongMemorySamples = 2 * WfmBlockSize;

WfmContent wfmContentOf(const SimState& state, const Frame& frame, const WfmRequest& request);
