#include "support/fakevisa.h"

#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/resourcechooser.h"
#include "link/visaopen.h"
#include "state/programstate.h"

#include <algorithm>
#include <cstring>

namespace {

void copyName(const std::string& name, char description[VI_FIND_BUFLEN])
{
    std::strncpy(description, name.c_str(), VI_FIND_BUFLEN - 1);
}

std::string withoutLineFeed(std::string line)
{
    if (!line.empty() && line.back() == '\n') line.pop_back();
    return line;
}

} // namespace

ViStatus FakeVisa::openDefaultRM(ViSession* manager)
{
    calls.push_back("openDefaultRM");
    *manager = Manager;
    return VI_SUCCESS;
}

ViStatus FakeVisa::findRsrc(ViSession, const char* expression, ViFindList* list, ViUInt32* count,
                            char description[VI_FIND_BUFLEN])
{
    calls.push_back(std::string("findRsrc ") + expression);
    *list = FindList;
    *count = ViUInt32(resources.size());
    nextFound_ = 1;
    if (resources.empty()) return VI_ERROR_RSRC_NFOUND;
    copyName(resources.front(), description);
    return VI_SUCCESS;
}

ViStatus FakeVisa::findNext(ViFindList, char description[VI_FIND_BUFLEN])
{
    calls.push_back("findNext");
    if (nextFound_ >= resources.size()) return VI_ERROR_RSRC_NFOUND;
    copyName(resources[nextFound_++], description);
    return VI_SUCCESS;
}

ViStatus FakeVisa::open(ViSession, const char* name, ViAccessMode, ViUInt32, ViSession* session)
{
    calls.push_back(std::string("open ") + name);
    if (openStatus == VI_SUCCESS) *session = Session;
    return openStatus;
}

ViStatus FakeVisa::close(ViObject object)
{
    calls.push_back("close " + std::to_string(object));
    return VI_SUCCESS;
}

ViStatus FakeVisa::read(ViSession, ViByte* buffer, ViUInt32 size, ViUInt32* count)
{
    calls.push_back("read " + std::to_string(size));
    const size_t taken = std::min<size_t>(size, pending.size());
    std::memcpy(buffer, pending.data(), taken);
    pending.erase(0, taken);
    *count = ViUInt32(taken);
    ViStatus status = taken == size && !pending.empty() ? VI_SUCCESS_MAX_CNT : VI_SUCCESS;
    if (taken == 0) status = VI_ERROR_TMO;
    if (!readStatuses.empty()) {
        status = readStatuses.front();
        readStatuses.erase(readStatuses.begin());
    }
    return status;
}

ViStatus FakeVisa::write(ViSession, const ViByte* buffer, ViUInt32 size, ViUInt32* count)
{
    const std::string bytes(reinterpret_cast<const char*>(buffer), size);
    calls.push_back("write");
    writes.push_back(bytes);
    *count = writeStatus == VI_SUCCESS ? size : 0;
    const auto reply = replies.find(withoutLineFeed(bytes));
    if (writeStatus == VI_SUCCESS && reply != replies.end()) pending += reply->second;
    return writeStatus;
}

ViStatus FakeVisa::clear(ViSession session)
{
    calls.push_back("clear " + std::to_string(session));
    return VI_SUCCESS;
}

ViStatus FakeVisa::setAttribute(ViObject, ViAttr attribute, ViAttrState value)
{
    calls.push_back("setAttribute");
    attributes[attribute] = value;
    return VI_SUCCESS;
}

ViStatus FakeVisa::getAttribute(ViObject, ViAttr attribute, void* value)
{
    calls.push_back("getAttribute");
    const ViUInt32 stored = ViUInt32(attributes[attribute]);
    std::memcpy(value, &stored, sizeof stored);
    return VI_SUCCESS;
}

std::vector<std::string> FakeVisa::commands() const
{
    std::vector<std::string> lines;
    for (const std::string& bytes : writes)
        lines.push_back(withoutLineFeed(bytes));
    return lines;
}

int FakeVisa::countOf(const std::string& call) const
{
    return int(std::count_if(calls.begin(), calls.end(),
                             [&](const std::string& made) { return made.rfind(call, 0) == 0; }));
}

ScopedFakeVisa::ScopedFakeVisa()
{
    auto fake = std::make_unique<FakeVisa>();
    fake_ = fake.get();
    previous_ = InstallVisaLibrary(std::move(fake));
}

ScopedFakeVisa::~ScopedFakeVisa()
{
    InstallVisaLibrary(std::move(previous_));
}

FakeVisaTest::FakeVisaTest()
{
    ResetProgramState();
    OpenVisaRM();
    visa->calls.clear();
}

FakeVisaTest::~FakeVisaTest()
{
    InstallResourceChooser({});
    ResetProgramState();
}

void FakeVisaTest::connectOverVisa()
{
    TransportType = TransportVisa;
    VisaSession = FakeVisa::Session;
    Connected = true;
    LinkLampOn = true;
}

QStringList FakeVisaTest::boxTexts() const
{
    QStringList texts;
    for (const RecordedBox& box : platform->boxes)
        texts.append(box.title + "|" + box.text);
    return texts;
}
