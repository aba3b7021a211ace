#pragma once
// Alternate trigger: the picture is split and each channel follows one of two
// time bases. Which one depends on the instrument's source pair, the one thing
// the drawing has to ask the instrument.

#include "acquire/waveparameter.h"
#include "text/valuetext.h"
#include "wave/displaytexts.h"

#include <QString>

// True when the text, upper-cased, names the pair CH1-CH2 or CH3-CH4 in order
// ("CH3CH4", "CHANNEL3CHANNEL4", "CHAN3CHAN4", "CH1CH2", "CHANNEL1CHANNEL2", "CHAN1CHAN2").
bool IsChannelPairOrdered(const QString& sourceText);

// Installs the seam that asks ":TRIGGER:ALTERNATION:SOURCE?" and returns the
// previous one; the default answers nothing (a pair that is not ordered).
InstrumentQuery SetAlternationSourceQuery(InstrumentQuery query);
// Asks the source pair and tests it.
bool AskChannelPairOrdered();

// Where a channel lies in alternate trigger: its half of the grid and its positions.
struct AltPlacement {
    bool lower = false;
    int start = 0;
    int end = 0;
};
AltPlacement AltPlacementOf(int channel, bool ordered, const WaveParameter& parameter);
