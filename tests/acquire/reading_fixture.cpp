#include "reading_fixture.h"

#include "link/linkstate.h"

namespace {

void put16(std::string& bytes, size_t at, int16_t value)
{
    bytes[at] = char(value & 0xFF);
    bytes[at + 1] = char((value >> 8) & 0xFF);
}

} // namespace

std::string ParameterBlock(const WaveParameter& p)
{
    std::string bytes(WaveParameterSize, '\0');
    put16(bytes, 0, p.s16ScrStartPos);
    put16(bytes, 2, p.s16ScrEndPos);
    put16(bytes, 4, p.s16ScrStartPosA);
    put16(bytes, 6, p.s16ScrEndPosA);
    put16(bytes, 8, p.s16ScrStartPosB);
    put16(bytes, 10, p.s16ScrEndPosB);
    bytes[12] = char(p.s8TimeRolling);
    bytes[13] = char(p.s8CH1Enabled_Stop);
    bytes[14] = char(p.s8CH2Enabled_Stop);
    bytes[15] = char(p.s8CH3Enabled_Stop);
    bytes[16] = char(p.s8CH4Enabled_Stop);
    bytes[34] = char(p.s8FFTEnabled_Stop);
    put16(bytes, 70, p.s16ChanPeakState);
    return bytes;
}

std::string Block(const std::string& data)
{
    const std::string length = std::to_string(data.size());
    return "#" + std::to_string(length.size()) + length + data + "\n";
}

ReadingTest::ReadingTest()
{
    Connected = true;
    VisaSession = FakeVisa::Session;
    answer(":TRIGGER:STATUS?", "STOP\n");
    answer(":MATH:DISPLAY?", "0\n");
    answer(":TRIGGER:MODE?", "EDGE\n");
    answer(":TIMEBASE:FORMAT?", "Y-T\n");
    answer(":TIMEBASE:SCALE?", "5.000e-04\n");
    answer(":TIMEBASE:OFFSET?", "0.000e+00\n");
    answer(":ACQUIRE:SRATE? CHANNEL1", "1.000e+06\n");
    for (const char* n : {"1", "2", "3", "4"}) {
        answer(std::string(":CHANNEL") + n + ":SCALE?", "1.000e+00\n");
        answer(std::string(":CHANNEL") + n + ":OFFSET?", "0.000e+00\n");
        answer(std::string(":CHANNEL") + n + ":INVERT?", "0\n");
    }
}
