// The firmware field of the identity and the version gate.
#include "datarows.h"
#include "link/devicefacts.h"
#include "link/firmware.h"
#include "state/programstate.h"

#include <gtest/gtest.h>

namespace {

// Every row of data/firmware.txt: the identity's last field with SP made zero,
// and the gate that compares a version character by character.
TEST(Firmware, EveryRowOfTheTable)
{
    int rows = 0;
    for (const QStringList& f : DataRows("link/data/firmware.txt")) {
        ASSERT_EQ(f.size(), 3);
        SCOPED_TRACE(f.join(u' ').toStdString());
        if (f[0] == QLatin1String("extract"))
            EXPECT_EQ(ExtractFirmwareVersion(f[1]), f[2]);
        else
            EXPECT_EQ(IsFirmwareSupported(f[1]), f[2] == QLatin1String("yes"));
        ++rows;
    }
    EXPECT_EQ(rows, 20);
}

TEST(ExtractFirmwareVersion, AnEmptyIdentitySetsFirmwareVersionToo)
{
    ResetProgramState();
    ExtractFirmwareVersion("A,B,C,00.04");
    EXPECT_EQ(FirmwareVersion, "") << "only the empty identity writes the global";
    ExtractFirmwareVersion("");
    EXPECT_EQ(FirmwareVersion, "00.03.03.00.00");
}

} // namespace
