#include "visa/resourcename.h"
#include "visa/visa.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace selvane::visa;

namespace {

struct NameCase {
    const char* text;
    const char* canonical;
};

std::ostream& operator<<(std::ostream& out, const NameCase& c)
{
    return out << '"' << c.text << '"';
}

class ResourceNameParses : public ::testing::TestWithParam<NameCase> {};

TEST_P(ResourceNameParses, IntoItsCanonicalForm)
{
    const auto name = parseResourceName(GetParam().text);
    ASSERT_TRUE(name) << GetParam().text;
    EXPECT_EQ(name->canonical(), GetParam().canonical);
    const auto again = parseResourceName(name->canonical());
    ASSERT_TRUE(again);
    EXPECT_EQ(again->canonical(), name->canonical()) << "the canonical form reads back as itself";
}

INSTANTIATE_TEST_SUITE_P(
    Table, ResourceNameParses,
    ::testing::Values(NameCase{"TCPIP0::192.168.1.5::inst0::INSTR", "TCPIP0::192.168.1.5::inst0::INSTR"},
                      NameCase{"TCPIP::192.168.1.5::INSTR", "TCPIP0::192.168.1.5::inst0::INSTR"},
                      NameCase{"TCPIP::192.168.1.5", "TCPIP0::192.168.1.5::inst0::INSTR"},
                      NameCase{"tcpip1::scope.lab::gpib0,5", "TCPIP1::scope.lab::gpib0,5::INSTR"},
                      NameCase{"TCPIP0::10.0.0.2::hislip0::INSTR", "TCPIP0::10.0.0.2::hislip0::INSTR"},
                      NameCase{"TCPIP::10.0.0.2::HISLIP0,4880::INSTR", "TCPIP0::10.0.0.2::hislip0::INSTR"},
                      NameCase{"TCPIP::10.0.0.2::hislip1,4881", "TCPIP0::10.0.0.2::hislip1,4881::INSTR"},
                      NameCase{"TCPIP0::[fe80::1]::inst0::INSTR", "TCPIP0::[fe80::1]::inst0::INSTR"},
                      NameCase{"TCPIP0::[::1]::5025::SOCKET", "TCPIP0::[::1]::5025::SOCKET"},
                      NameCase{"tcpip::localhost::5025::socket", "TCPIP0::localhost::5025::SOCKET"},
                      NameCase{"USB0::0x1234::0x5678::A22-5::INSTR", "USB0::0x1234::0x5678::A22-5::INSTR"},
                      NameCase{"usb::4660::22136::A22-5", "USB0::0x1234::0x5678::A22-5::INSTR"},
                      NameCase{"USB1::0xabcd::0x1::SN::2::INSTR", "USB1::0xABCD::0x0001::SN::2::INSTR"},
                      NameCase{"GPIB0::7::INSTR", "GPIB0::7::INSTR"},
                      NameCase{"GPIB::30", "GPIB0::30::INSTR"},
                      NameCase{"gpib2::7::3::instr", "GPIB2::7::3::INSTR"},
                      NameCase{"ASRL1::INSTR", "ASRL1::INSTR"}, NameCase{"ASRL", "ASRL0::INSTR"},
                      NameCase{"asrl/dev/ttyUSB0::INSTR", "ASRL/dev/ttyUSB0::INSTR"},
                      NameCase{"  TCPIP0::host::INSTR \t", "TCPIP0::host::inst0::INSTR"}));

TEST(ResourceName, KeepsThePartsEachBackendNeeds)
{
    const auto hislip = parseResourceName("TCPIP0::[fe80::1%eth0]::hislip0,4999::INSTR");
    ASSERT_TRUE(hislip);
    EXPECT_EQ(hislip->protocol, TcpipProtocol::Hislip);
    EXPECT_EQ(hislip->host, "fe80::1%eth0");
    EXPECT_EQ(hislip->deviceName, "hislip0");
    EXPECT_EQ(hislip->port, 4999);

    const auto usb = parseResourceName("USB0::0x1234::0x5678::a22-5::INSTR");
    ASSERT_TRUE(usb);
    EXPECT_EQ(usb->interface, Interface::Usb);
    EXPECT_EQ(usb->vendorId, 0x1234);
    EXPECT_EQ(usb->productId, 0x5678);
    EXPECT_EQ(usb->serial, "a22-5");
    EXPECT_EQ(usb->interfaceNumber, -1);

    const auto serial = parseResourceName("ASRL/dev/pts/3::INSTR");
    ASSERT_TRUE(serial);
    EXPECT_EQ(serial->devicePath, "/dev/pts/3");
}

class ResourceNameRejects : public ::testing::TestWithParam<const char*> {};

TEST_P(ResourceNameRejects, MalformedNameAlsoThroughViOpen)
{
    EXPECT_FALSE(parseResourceName(GetParam())) << GetParam();
    ViSession manager = VI_NULL, session = VI_NULL;
    ASSERT_EQ(viOpenDefaultRM(&manager), VI_SUCCESS);
    EXPECT_EQ(viOpen(manager, GetParam(), VI_NULL, VI_NULL, &session), VI_ERROR_INV_RSRC_NAME) << GetParam();
    EXPECT_EQ(session, VI_NULL);
    viClose(manager);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ResourceNameRejects,
    ::testing::Values("", "   ", "FOO0::1::INSTR", "TCPIPx::host::INSTR", "TCPIP0", "TCPIP0::::INSTR",
                      "TCPIP0::ho st::INSTR", "TCPIP0::host::inst0::extra::INSTR", "TCPIP0::host::SOCKET",
                      "TCPIP0::host::0::SOCKET", "TCPIP0::host::65536::SOCKET", "TCPIP0::host::50x5::SOCKET",
                      "TCPIP0::host::1::2::SOCKET", "TCPIP0::[fe80::1::INSTR", "TCPIP0::[]::INSTR",
                      "TCPIP0::host::hislip0,0::INSTR", "TCPIP0::host::hislip0,abc::INSTR",
                      "TCPIP0::host::hislipX::INSTR", "TCPIP0::host::in/st0::INSTR", "USB0::0x1234::INSTR",
                      "USB0::0x12345::0x5678::SN::INSTR", "USB0::0xZZ::0x5678::SN::INSTR",
                      "USB0::0x1234::0x5678::SN::x::INSTR", "USB0::0x1234::0x5678::SN::1::2::INSTR",
                      "USB0::0x1234::0x5678::SN::SOCKET", "GPIB0::31::INSTR", "GPIB0::INSTR",
                      "GPIB0::1::2::3::INSTR", "GPIB0::5::SOCKET", "ASRL1::2::INSTR", "ASRL/::INSTR",
                      "ASRL99999999999::INSTR", "ASRL/dev/ttyU]B0::I-STR", "ASRL/dev/tty:S0::INSTR",
                      "USB0::0x1234::0x5678::SN:::INSTR", "USB0::1::2::[SN::INSTR"));

} // namespace
