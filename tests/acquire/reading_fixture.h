#pragma once
// The readings' unit tests: the scripted VISA instrument set up as a stopped
// instrument, and the blocks it hands out.

#include "acquire/waveparameter.h"
#include "support/fakevisa.h"

#include <string>

// The 80 bytes of a parameter block, little-endian, with the fields the
// readings look at.
std::string ParameterBlock(const WaveParameter& p);
// A "#" block around data.
std::string Block(const std::string& data);

// Connected over VISA to a fake that answers the settings of a stopped
// instrument at 1 V and 500 us a division.
class ReadingTest : public FakeVisaTest {
  protected:
    ReadingTest();

    void answer(const std::string& command, const std::string& reply) { visa->replies[command] = reply; }
    void answerParameter(const WaveParameter& p) { answer(":WAVEFORM:PARAMETER?", Block(ParameterBlock(p))); }
};
