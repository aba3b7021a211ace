#pragma once
// The reading's side of a block read: the link hands over bytes, these put
// them where the readings look for them.

#include "acquire/waveparameter.h"

#include <QString>

// One screen block into WaveBytes, sample i at index i; false when a sample
// would fall outside WaveBytes (the reading's error path). sampleCount gets
// the number of samples in the reply.
bool UsbReadScreen(int& sampleCount);
// Reads and decodes the parameter block into target. A failed read leaves
// target as it was and returns ""; otherwise returns f32FFTHorizOffset as
// text: a mark that something was read.
QString UsbReadParameter(WaveParameter& target);
