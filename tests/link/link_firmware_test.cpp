// The firmware field of the identity and the version gate.
#include "link/devicefacts.h"
#include "link/firmware.h"
#include "state/programstate.h"

#include <gtest/gtest.h>

namespace {

struct ExtractCase {
    const char* identity;
    const char* firmware;
};

class ExtractTable : public ::testing::TestWithParam<ExtractCase> {};

TEST_P(ExtractTable, TakesTheLastFieldWithSpMadeZero)
{
    EXPECT_EQ(ExtractFirmwareVersion(GetParam().identity), GetParam().firmware);
}

INSTANTIATE_TEST_SUITE_P(
    Identities, ExtractTable,
    ::testing::Values(ExtractCase{"KORVA TECHNOLOGIES,KV7204B,123,00.03.03", "00.03.03"},
                      ExtractCase{"KORVA TECHNOLOGIES,KV7204B,123,00.03.03.SP1", "00.03.03.01"},
                      ExtractCase{"A,B,C,SP.SPSP\n", "0.00\n"}, // every SP, and the line feed stays
                      ExtractCase{"no comma at all", "no comma at all"}, ExtractCase{"trailing,", ""},
                      ExtractCase{"", "00.03.03.00.00"}));

TEST(ExtractFirmwareVersion, AnEmptyIdentitySetsFirmwareVersionToo)
{
    ResetProgramState();
    ExtractFirmwareVersion("A,B,C,00.04");
    EXPECT_EQ(FirmwareVersion, "") << "only the empty identity writes the global";
    ExtractFirmwareVersion("");
    EXPECT_EQ(FirmwareVersion, "00.03.03.00.00");
}

struct VersionCase {
    const char* version;
    bool supported;
};

class VersionTable : public ::testing::TestWithParam<VersionCase> {};

TEST_P(VersionTable, ComparesCharacterByCharacter)
{
    EXPECT_EQ(IsFirmwareSupported(GetParam().version), GetParam().supported) << GetParam().version;
}

INSTANTIATE_TEST_SUITE_P(
    Versions, VersionTable,
    ::testing::Values(VersionCase{"00.03.03.00.00", true},
                      VersionCase{"00.03.03.01", true}, // from "00.03.03.SP1"
                      VersionCase{"00.03.03", true},    // the short threshold
                      VersionCase{"00.03.03\n", true},  // sorts after "00.03.03"
                      VersionCase{"00.03.03.00.00\n", true}, VersionCase{"00.03.05.00.00", true},
                      VersionCase{"01", true}, VersionCase{"A", true}, // letters sort after digits
                      VersionCase{"00.03.02.00.00", false}, VersionCase{"00.03.02.99.99\n", false},
                      VersionCase{"00.03.0", false}, VersionCase{"0.3.3", false}, VersionCase{"", false},
                      VersionCase{" 00.03.03", false})); // a blank sorts first

} // namespace
