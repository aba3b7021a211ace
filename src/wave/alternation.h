#pragma once
// Alternate trigger: the picture is split and each channel follows one of two
// time bases. Which one depends on the instrument's source pair, the one thing
// the drawing has to ask the instrument.

#include "acquire/waveparameter.h"
#include "wave/displaytexts.h"

#include <QString>

// True when the text, upper-cased, names the pair CH1-CH2 or CH3-CH4 in order
// ("CH3CH4", "CHANNEL3CHANNEL4", "CHAN3CHAN4", "CH1CH2", "CHANNEL1CHANNEL2", "CHAN1CHAN2").
bool IsChannelPairOrdered(const QString& sourceText);

// Asks the instrument ":TRIGGER:ALTERNATION:SOURCE?" and tests the reply. Without
// a link the reply is empty: a pair that is not ordered.
bool AskChannelPairOrdered();

// Where a channel lies in alternate trigger: its half of the grid and its positions.
struct AltPlacement {
    bool lower = false;
    int start = 0;
    int end = 0;
};
AltPlacement AltPlacementOf(int channel, bool ordered, const WaveParameter& parameter);
