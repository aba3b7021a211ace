#include "acquire/wavebytes.h"

std::array<int32_t, WaveBytesLast + 1> WaveBytes{};
int32_t WaveCount = 0;

void ResetWaveBytes()
{
    WaveBytes.fill(0);
    WaveCount = 0;
}
