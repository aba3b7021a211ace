// The shared library's exported calls as a C program sees them (through
// dlopen): bad input gets the standard status and nothing crashes.
#include "visa/visa.h"
#include "visa/visaextras.h"
#include "visatesting.h"

#include <cstring>
#include <dlfcn.h>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace {

template <typename Function> Function* symbol(void* library, const char* name)
{
    return library ? reinterpret_cast<Function*>(::dlsym(library, name)) : nullptr;
}

// The library's own entry points, not the program's front end of the same names.
struct Exports {
    void* library = ::dlopen(SELVANE_VISA_SHARED_PATH, RTLD_NOW | RTLD_LOCAL);
#define SELVANE_EXPORT(name) decltype(::name)* name = symbol<decltype(::name)>(library, #name)
    SELVANE_EXPORT(viOpenDefaultRM);
    SELVANE_EXPORT(viOpen);
    SELVANE_EXPORT(viClose);
    SELVANE_EXPORT(viRead);
    SELVANE_EXPORT(viWrite);
    SELVANE_EXPORT(viClear);
    SELVANE_EXPORT(viGetAttribute);
    SELVANE_EXPORT(viSetAttribute);
    SELVANE_EXPORT(viFindRsrc);
#undef SELVANE_EXPORT
#define SELVANE_EXTRA(name, function)                                                                        \
    decltype(selvane::visa::function)* name = symbol<decltype(selvane::visa::function)>(library, #name)
    SELVANE_EXTRA(viParseRsrcEx, parseResourceEx);
    SELVANE_EXTRA(viReadSTB, readStatusByte);
    SELVANE_EXTRA(viAssertTrigger, assertTrigger);
    SELVANE_EXTRA(viFlush, flush);
    SELVANE_EXTRA(viSetBuf, setBuffer);
    SELVANE_EXTRA(viStatusDesc, statusDescription);
    SELVANE_EXTRA(viLock, lock);
    SELVANE_EXTRA(viUnlock, unlock);
    SELVANE_EXTRA(viEnableEvent, enableEvent);
    SELVANE_EXTRA(viDisableEvent, disableEvent);
    SELVANE_EXTRA(viWaitOnEvent, waitOnEvent);
    SELVANE_EXTRA(viGpibControlREN, gpibControlRen);
    SELVANE_EXTRA(viReadToFile, readToFile);
    SELVANE_EXTRA(viWriteFromFile, writeFromFile);
#undef SELVANE_EXTRA
};

Exports& lib()
{
    static Exports exports;
    return exports;
}

constexpr ViSession kNeverOpened = 0x7654321;
constexpr ViAttr kUnknownAttribute = 0x3FFF7777u;

struct Case {
    const char* what;
    std::function<ViStatus()> call;
    ViStatus expected;
};

// One manager and one SOCKET session on a peer that never answers.
class ExportedCalls : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_NE(lib().library, nullptr) << ::dlerror();
        ASSERT_NE(lib().viWriteFromFile, nullptr);
        ASSERT_EQ(lib().viOpenDefaultRM(&manager), VI_SUCCESS);
        ASSERT_EQ(lib().viOpen(manager, peer.socketResource().c_str(), VI_NO_LOCK, 0, &session), VI_SUCCESS);
        ASSERT_EQ(lib().viSetAttribute(session, VI_ATTR_TMO_VALUE, 50), VI_SUCCESS);
    }
    void TearDown() override { lib().viClose(manager); }

    void run(const std::vector<Case>& cases)
    {
        for (const Case& c : cases)
            EXPECT_EQ(c.call(), c.expected) << c.what << ": " << viStatusName(c.call());
    }

    TcpPeer peer;
    ViSession manager = VI_NULL;
    ViSession session = VI_NULL;
};

TEST_F(ExportedCalls, BadInputGetsTheStandardStatus)
{
    const std::string huge(10000, 'A');
    const std::string hugeTcpip = "TCPIP0::" + huge + "::INSTR";
    ViByte buffer[16];
    ViUInt32 count = 0;
    ViUInt16 value16 = 0;
    char text[VI_FIND_BUFLEN];
    ViSession opened = VI_NULL;
    const auto& v = lib();
    run({
        {"10,000-character name", [&] { return v.viOpen(manager, hugeTcpip.c_str(), 0, 0, &opened); },
         VI_ERROR_INV_RSRC_NAME},
        {"10,000-character parse",
         [&] { return v.viParseRsrcEx(manager, huge.c_str(), &value16, &value16, text, text, text); },
         VI_ERROR_INV_RSRC_NAME},
        {"unknown interface", [&] { return v.viOpen(manager, "FOO0::1::INSTR", 0, 0, &opened); },
         VI_ERROR_INV_RSRC_NAME},
        {"null name",
         [&] { return v.viParseRsrcEx(manager, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr); },
         VI_ERROR_INV_RSRC_NAME},
        {"parse on a session",
         [&] { return v.viParseRsrcEx(session, "ASRL1::INSTR", &value16, &value16, text, text, text); },
         VI_ERROR_INV_OBJECT},
        {"read, never opened", [&] { return v.viRead(kNeverOpened, buffer, 16, &count); },
         VI_ERROR_INV_OBJECT},
        {"write, never opened", [&] { return v.viWrite(kNeverOpened, buffer, 16, &count); },
         VI_ERROR_INV_OBJECT},
        {"status byte, never opened", [&] { return v.viReadSTB(kNeverOpened, &value16); },
         VI_ERROR_INV_OBJECT},
        {"lock, never opened", [&] { return v.viLock(kNeverOpened, VI_EXCLUSIVE_LOCK, 0, nullptr, nullptr); },
         VI_ERROR_INV_OBJECT},
        {"attribute, never opened", [&] { return v.viGetAttribute(kNeverOpened, VI_ATTR_TMO_VALUE, &count); },
         VI_ERROR_INV_OBJECT},
        {"event, never opened",
         [&] { return v.viEnableEvent(kNeverOpened, VI_EVENT_SERVICE_REQ, VI_QUEUE, 0); },
         VI_ERROR_INV_OBJECT},
        {"null read buffer", [&] { return v.viRead(session, nullptr, 16, &count); }, VI_ERROR_INV_PARAMETER},
        {"null write buffer", [&] { return v.viWrite(session, nullptr, 16, &count); },
         VI_ERROR_INV_PARAMETER},
        {"null attribute value", [&] { return v.viGetAttribute(session, VI_ATTR_TMO_VALUE, nullptr); },
         VI_ERROR_INV_PARAMETER},
        {"null status byte", [&] { return v.viReadSTB(session, nullptr); }, VI_ERROR_INV_PARAMETER},
        {"null description", [&] { return v.viStatusDesc(session, VI_ERROR_TMO, nullptr); },
         VI_ERROR_INV_PARAMETER},
        {"null file name", [&] { return v.viReadToFile(session, nullptr, 16, &count); },
         VI_ERROR_INV_PARAMETER},
        {"missing file", [&] { return v.viWriteFromFile(session, "/nonexistent/selvane", 16, &count); },
         VI_ERROR_FILE_ACCESS},
        {"read of zero bytes", [&] { return v.viRead(session, buffer, 0, &count); }, VI_SUCCESS_MAX_CNT},
        {"write of zero bytes", [&] { return v.viWrite(session, buffer, 0, &count); }, VI_SUCCESS},
        {"silent peer", [&] { return v.viRead(session, buffer, 16, &count); }, VI_ERROR_TMO},
        {"unknown attribute", [&] { return v.viSetAttribute(session, kUnknownAttribute, 1); },
         VI_ERROR_NSUP_ATTR},
        {"serial attribute on a socket", [&] { return v.viGetAttribute(session, VI_ATTR_ASRL_BAUD, &count); },
         VI_ERROR_NSUP_ATTR},
        {"read-only attribute", [&] { return v.viSetAttribute(session, VI_ATTR_RSRC_NAME, 0); },
         VI_ERROR_ATTR_READONLY},
        {"term character out of range", [&] { return v.viSetAttribute(session, VI_ATTR_TERMCHAR, 300); },
         VI_ERROR_NSUP_ATTR_STATE},
        {"status byte on a plain socket", [&] { return v.viReadSTB(session, &value16); }, VI_ERROR_NSUP_OPER},
        {"trigger on a plain socket", [&] { return v.viAssertTrigger(session, 0); }, VI_ERROR_NSUP_OPER},
        {"REN without GPIB", [&] { return v.viGpibControlREN(session, 1); }, VI_ERROR_NSUP_OPER},
        {"flush mask 0", [&] { return v.viFlush(session, 0); }, VI_ERROR_INV_MASK},
        {"buffer mask 0x100", [&] { return v.viSetBuf(session, 0x100, 4096); }, VI_ERROR_INV_MASK},
        {"lock type 7", [&] { return v.viLock(session, 7, 0, nullptr, nullptr); }, VI_ERROR_INV_LOCK_TYPE},
        {"unlock without lock", [&] { return v.viUnlock(session); }, VI_ERROR_SESN_NLOCKED},
        {"event mechanism 99", [&] { return v.viEnableEvent(session, VI_EVENT_SERVICE_REQ, 99, 0); },
         VI_ERROR_INV_MECH},
        {"service requests", [&] { return v.viEnableEvent(session, VI_EVENT_SERVICE_REQ, VI_QUEUE, 0); },
         VI_ERROR_INV_EVENT},
        {"disable all", [&] { return v.viDisableEvent(session, VI_ALL_ENABLED_EVENTS, VI_ALL_MECH); },
         VI_SUCCESS_EVENT_DIS},
        {"wait without events",
         [&] { return v.viWaitOnEvent(session, VI_ALL_ENABLED_EVENTS, 0, nullptr, nullptr); },
         VI_ERROR_NENABLED},
        {"unknown status text", [&] { return v.viStatusDesc(session, 0x12345, text); },
         VI_WARN_UNKNOWN_STATUS},
    });
}

// Each numeric attribute is written at its own width and not a byte beyond.
TEST_F(ExportedCalls, SessionAttributesHaveTheirStandardValuesAndWidths)
{
    const auto& v = lib();
    ViUInt32 count = 0;
    ASSERT_EQ(v.viWrite(session, reinterpret_cast<const ViByte*>("abc"), 3, &count), VI_SUCCESS);
    struct Row {
        ViAttr attribute;
        size_t width;
        uint64_t value;
    };
    const Row rows[] = {{VI_ATTR_INTF_TYPE, 2, VI_INTF_TCPIP},
                        {VI_ATTR_INTF_NUM, 2, 0},
                        {VI_ATTR_TCPIP_PORT, 2, peer.port()},
                        {VI_ATTR_TERMCHAR, 1, '\n'},
                        {VI_ATTR_SEND_END_EN, 2, VI_TRUE},
                        {VI_ATTR_TCPIP_NODELAY, 2, VI_TRUE},
                        {VI_ATTR_TCPIP_KEEPALIVE, 2, VI_FALSE},
                        {VI_ATTR_TERMCHAR_EN, 2, VI_FALSE},
                        {VI_ATTR_TMO_VALUE, 4, 50},
                        {VI_ATTR_RSRC_LOCK_STATE, 4, VI_NO_LOCK},
                        {VI_ATTR_IO_PROT, 2, VI_PROT_NORMAL},
                        {VI_ATTR_RSRC_SPEC_VERSION, 4, 0x00700100u},
                        {VI_ATTR_RET_COUNT_32, 4, 3},
                        {VI_ATTR_RET_COUNT_64, 8, 3}};
    for (const Row& row : rows) {
        uint8_t bytes[16];
        std::memset(bytes, 0xEE, sizeof bytes);
        ASSERT_EQ(v.viGetAttribute(session, row.attribute, bytes), VI_SUCCESS) << std::hex << row.attribute;
        uint64_t value = 0;
        std::memcpy(&value, bytes, row.width);
        EXPECT_EQ(value, row.value) << std::hex << row.attribute;
        EXPECT_EQ(bytes[row.width], 0xEE) << "wider than its type: " << std::hex << row.attribute;
    }
    const std::pair<ViAttr, const char*> texts[] = {{VI_ATTR_RSRC_CLASS, "SOCKET"},
                                                    {VI_ATTR_TCPIP_ADDR, "127.0.0.1"},
                                                    {VI_ATTR_RSRC_MANF_NAME, "Selvane"}};
    for (const auto& [attribute, expected] : texts) {
        char text[VI_FIND_BUFLEN] = "";
        EXPECT_EQ(v.viGetAttribute(session, attribute, text), VI_SUCCESS) << expected;
        EXPECT_STREQ(text, expected);
    }
    char name[VI_FIND_BUFLEN] = "";
    EXPECT_EQ(v.viGetAttribute(session, VI_ATTR_RSRC_NAME, name), VI_SUCCESS);
    EXPECT_EQ(name, peer.socketResource());
}

TEST_F(ExportedCalls, ParsingAndLockingFollowTheStandard)
{
    const auto& v = lib();
    ViUInt16 type = 0, board = 0;
    char rsrcClass[VI_FIND_BUFLEN], expanded[VI_FIND_BUFLEN], alias[VI_FIND_BUFLEN];
    ASSERT_EQ(v.viParseRsrcEx(manager, "tcpip3::Example.COM::5025::socket", &type, &board, rsrcClass,
                              expanded, alias),
              VI_SUCCESS);
    EXPECT_EQ(type, VI_INTF_TCPIP);
    EXPECT_EQ(board, 3);
    EXPECT_STREQ(rsrcClass, "SOCKET");
    EXPECT_STREQ(expanded, "TCPIP3::Example.COM::5025::SOCKET");
    EXPECT_STREQ(alias, "");

    // A second session of the same resource waits for the lock and is refused I/O meanwhile.
    ViSession other = VI_NULL;
    ASSERT_EQ(v.viOpen(manager, peer.socketResource().c_str(), VI_NO_LOCK, 0, &other), VI_SUCCESS);
    char key[VI_FIND_BUFLEN] = "";
    ASSERT_EQ(v.viLock(session, VI_SHARED_LOCK, 0, "bench", key), VI_SUCCESS);
    EXPECT_STREQ(key, "bench");
    EXPECT_EQ(v.viLock(session, VI_SHARED_LOCK, 0, nullptr, key), VI_SUCCESS_NESTED_SHARED);
    EXPECT_EQ(v.viLock(other, VI_EXCLUSIVE_LOCK, 20, nullptr, nullptr), VI_ERROR_TMO);
    ViUInt32 count = 0;
    EXPECT_EQ(v.viWrite(other, reinterpret_cast<const ViByte*>("x"), 1, &count), VI_ERROR_RSRC_LOCKED);
    EXPECT_EQ(v.viLock(other, VI_SHARED_LOCK, 0, "bench", key), VI_SUCCESS) << "the key shares the lock";
    ViUInt32 state = 0;
    EXPECT_EQ(v.viGetAttribute(other, VI_ATTR_RSRC_LOCK_STATE, &state), VI_SUCCESS);
    EXPECT_EQ(state, VI_SHARED_LOCK);
    EXPECT_EQ(v.viUnlock(session), VI_SUCCESS_NESTED_SHARED);
    EXPECT_EQ(v.viUnlock(session), VI_SUCCESS);
    EXPECT_EQ(v.viClose(other), VI_SUCCESS) << "closing lets its lock go";
    EXPECT_EQ(v.viLock(session, VI_EXCLUSIVE_LOCK, 0, nullptr, nullptr), VI_SUCCESS);
    EXPECT_EQ(v.viUnlock(session), VI_SUCCESS);
}

} // namespace
