#include "datarows.h"
#include "visa/resourcename.h"
#include "visa/visa.h"

#include <gtest/gtest.h>

using namespace selvane::visa;

namespace {

// The "name" and "badname" rows of data/names.txt: a name reads into its
// canonical form, which reads back as itself; a malformed one is refused by the
// parser and by viOpen.
TEST(ResourceName, EveryRowOfTheTable)
{
    int rows = 0;
    for (const QStringList& f : DataRows("visa/data/names.txt")) {
        const std::string text = f.value(1).toStdString();
        SCOPED_TRACE(f.join(u' ').toStdString());
        if (f[0] == QLatin1String("name")) {
            ASSERT_EQ(f.size(), 3);
            const auto name = parseResourceName(text);
            ASSERT_TRUE(name);
            EXPECT_EQ(name->canonical(), f[2].toStdString());
            const auto again = parseResourceName(name->canonical());
            ASSERT_TRUE(again);
            EXPECT_EQ(again->canonical(), name->canonical());
        } else if (f[0] == QLatin1String("badname")) {
            EXPECT_FALSE(parseResourceName(text));
            ViSession manager = VI_NULL, session = VI_NULL;
            ASSERT_EQ(viOpenDefaultRM(&manager), VI_SUCCESS);
            EXPECT_EQ(viOpen(manager, text.c_str(), VI_NULL, VI_NULL, &session), VI_ERROR_INV_RSRC_NAME);
            EXPECT_EQ(session, VI_NULL);
            viClose(manager);
        } else {
            continue;
        }
        ++rows;
    }
    EXPECT_EQ(rows, 57);
}

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

} // namespace
