#pragma once
// A scripted VISA library for unit and window tests: a list of resources, an
// instrument that answers known commands, forced statuses, and a record of every
// call and write. ScopedFakeVisa puts it in place of the real library;
// FakeVisaTest does so over a fresh program state.

#include "link/visalibrary.h"
#include "platform/testplatform.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

class FakeVisa : public VisaLibrary {
  public:
    static constexpr ViSession Manager = 11;
    static constexpr ViSession Session = 22;
    static constexpr ViFindList FindList = 33;
    // An identity a connect accepts: maker, a supported model, firmware recent enough.
    static constexpr const char* SupportedIdentity = "Korva Technologies,KV7204B,SN0001,00.03.05.00.00\n";

    std::vector<std::string> resources;         // what the find lists
    std::map<std::string, std::string> replies; // command without its line feed -> reply bytes
    std::string pending;                        // bytes waiting to be read
    std::vector<ViStatus> readStatuses;         // forced statuses of the next reads, first first
    ViStatus openStatus = VI_SUCCESS;
    ViStatus writeStatus = VI_SUCCESS;

    std::vector<std::string> calls;  // "findRsrc PATTERN", "findNext", "open NAME", "clear 22", ...
    std::vector<std::string> writes; // the bytes of every write, line feed included
    std::map<ViAttr, ViAttrState> attributes;

    ViStatus openDefaultRM(ViSession* manager) override;
    ViStatus findRsrc(ViSession manager, const char* expression, ViFindList* list, ViUInt32* count,
                      char description[VI_FIND_BUFLEN]) override;
    ViStatus findNext(ViFindList list, char description[VI_FIND_BUFLEN]) override;
    ViStatus open(ViSession manager, const char* name, ViAccessMode mode, ViUInt32 timeout,
                  ViSession* session) override;
    ViStatus close(ViObject object) override;
    ViStatus read(ViSession session, ViByte* buffer, ViUInt32 size, ViUInt32* count) override;
    ViStatus write(ViSession session, const ViByte* buffer, ViUInt32 size, ViUInt32* count) override;
    ViStatus clear(ViSession session) override;
    ViStatus setAttribute(ViObject object, ViAttr attribute, ViAttrState value) override;
    ViStatus getAttribute(ViObject object, ViAttr attribute, void* value) override;

    // The commands written, each without its line feed.
    std::vector<std::string> commands() const;
    int countOf(const std::string& call) const;

  private:
    size_t nextFound_ = 1;
};

// A FakeVisa in place of the VISA library for the object's lifetime.
class ScopedFakeVisa {
  public:
    ScopedFakeVisa();
    ~ScopedFakeVisa();
    ScopedFakeVisa(const ScopedFakeVisa&) = delete;
    ScopedFakeVisa& operator=(const ScopedFakeVisa&) = delete;
    FakeVisa* operator->() const { return fake_; }
    FakeVisa* get() const { return fake_; }

  private:
    FakeVisa* fake_;
    std::unique_ptr<VisaLibrary> previous_;
};

// A fresh program state, a recording platform and the fake in place of the VISA
// library, its resource manager open; everything is put back after.
class FakeVisaTest : public ::testing::Test {
  protected:
    FakeVisaTest();
    ~FakeVisaTest() override;

    // The link as ConnectDevice leaves it over VISA.
    void connectOverVisa();
    QStringList boxTexts() const;

    ScopedTestPlatform platform;
    ScopedFakeVisa installed;
    FakeVisa* visa = installed.get();
};
