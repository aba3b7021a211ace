#pragma once
// What the instrument puts in a record file: successive screens of one
// channel (the first one shown), each 600 screen rows, and optionally a
// second block with the screens of the next channel shown, drawn over the
// first when replayed.

#include "files/rcdwriter.h"
#include "model/simstate.h"

#include <QString>

struct RcdRequest {
    QString model = "KV7204B";
    int frames = 100;
    bool secondBlock = false;
};

// The most frames a file holds: the reader takes 1,100,001 bytes, and the
// first block must end where the second begins.
constexpr int RcdMaxFrames = (1100001 - RcdHeaderSize) / RcdFrameSize;
constexpr int RcdMaxFramesWithSecond = RcdFramesBeforeSecond;

RcdContent rcdContentOf(const SimState& state, const RcdRequest& request);
