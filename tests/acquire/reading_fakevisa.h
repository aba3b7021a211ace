#pragma once
// An instrument for the readings' unit tests: each query line written gets
// its scripted reply, which the next reads hand out; every write is kept.

#include "acquire/waveparameter.h"
#include "link/visalibrary.h"
#include "platform/testplatform.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

class ReadingVisa : public VisaLibrary {
  public:
    std::map<std::string, std::string> replies; // command without line feed -> reply bytes
    std::vector<std::string> writes;            // commands without line feed
    std::string pending;

    ViStatus openDefaultRM(ViSession* manager) override;
    ViStatus findRsrc(ViSession, const char*, ViFindList*, ViUInt32* count, char*) override;
    ViStatus findNext(ViFindList, char*) override { return VI_ERROR_RSRC_NFOUND; }
    ViStatus open(ViSession, const char*, ViAccessMode, ViUInt32, ViSession*) override
    {
        return VI_ERROR_RSRC_NFOUND;
    }
    ViStatus close(ViObject) override { return VI_SUCCESS; }
    ViStatus read(ViSession session, ViByte* buffer, ViUInt32 size, ViUInt32* count) override;
    ViStatus write(ViSession session, const ViByte* buffer, ViUInt32 size, ViUInt32* count) override;
    ViStatus clear(ViSession) override { return VI_SUCCESS; }
    ViStatus setAttribute(ViObject, ViAttr, ViAttrState) override { return VI_SUCCESS; }
    ViStatus getAttribute(ViObject, ViAttr, void*) override { return VI_SUCCESS; }
};

// The 80 bytes of a parameter block, little-endian, with the fields the
// readings look at.
std::string ParameterBlock(const WaveParameter& p);
// A "#" block around data.
std::string Block(const std::string& data);

// A fresh program state, connected over VISA to a ReadingVisa that answers the
// settings of a stopped instrument at 1 V and 500 us a division.
class ReadingTest : public ::testing::Test {
  protected:
    ReadingTest();
    ~ReadingTest() override;

    void answer(const std::string& command, const std::string& reply) { visa->replies[command] = reply; }
    void answerParameter(const WaveParameter& p) { answer(":WAVEFORM:PARAMETER?", Block(ParameterBlock(p))); }

    ScopedTestPlatform platform;
    ReadingVisa* visa = nullptr;

  private:
    std::unique_ptr<VisaLibrary> previous_;
};
