// Feeds arbitrary bytes as the instrument's parameter block and the screen
// block that follows it, then places the samples as a reading does: no reply
// may crash or write outside a trace.
#include "acquire/waveparameter.h"
#include "acquire/blockplacement.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    unsigned char block[WaveParameterSize] = {};
    std::memcpy(block, data, std::min(size, WaveParameterSize));
    WaveParameter parameter;
    Lindquay(block, &parameter);
    PeakFlags flags{};
    GetPeakStates(parameter, flags);

    // The rest are the samples, one byte each as on the wire; the count the
    // reply claims comes from the parameter block so it can disagree with them.
    const size_t rest = size > WaveParameterSize ? size - WaveParameterSize : 0;
    std::vector<int32_t> codes(rest + 1);
    for (size_t i = 0; i < rest; ++i)
        codes[i + 1] = data[WaveParameterSize + i];
    const int count = parameter.s16ScrEndPos;
    const int sampleBase = parameter.s16ScrStartPos;
    const auto source = TraceSource(unsigned(parameter.s8FFTSource) % 4);
    WaveArray trace, first, second, ch1, ch2;
    if (PlaceTraceBlock(codes, count, source, sampleBase, trace) && source == TraceSource::Xy)
        PlaceXyTraces(trace, count, ch1, ch2);
    PlacePeakBlock(codes, count, sampleBase, first, second);
    return 0;
}
