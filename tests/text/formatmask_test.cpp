#include "text/formatmask.h"
#include "textcase.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

struct MaskCase {
    double value;
    const char* mask;
    const char* expected;
};

void PrintTo(const MaskCase& c, std::ostream* os)
{
    *os << "FormatMask(" << c.value << ", \"" << c.mask << "\") -> \"" << c.expected << "\"";
}

class FormatMaskTable : public ::testing::TestWithParam<MaskCase> {};

TEST_P(FormatMaskTable, GivesTheText)
{
    const MaskCase& c = GetParam();
    EXPECT_EQ(FormatMask(c.value, QString::fromUtf8(c.mask)), QString::fromUtf8(c.expected));
}

// Ties round away from zero on the decimal text the value reads as, not on its binary neighbour.
INSTANTIATE_TEST_SUITE_P(TieRounding, FormatMaskTable,
                         ::testing::Values(MaskCase{2.675, "0.00", "2.68"}, MaskCase{1.005, "0.00", "1.01"},
                                           MaskCase{0.125, "0.00", "0.13"}, MaskCase{-2.675, "0.00", "-2.68"},
                                           MaskCase{0.5, "0", "1"}, MaskCase{2.5, "0", "3"},
                                           MaskCase{-0.5, "0", "-1"}, MaskCase{9.995, "#.00", "10.00"},
                                           MaskCase{0.0005, "0.000", "0.001"},
                                           MaskCase{0.00049, "0.000", "0.000"}));

INSTANTIATE_TEST_SUITE_P(
    Placeholders, FormatMaskTable,
    ::testing::Values(MaskCase{0.5, "#.00", ".50"}, MaskCase{12.4, "###", "12"}, MaskCase{0, "###", ""},
                      MaskCase{0, "#0", "0"}, MaskCase{100, "#0", "100"}, MaskCase{12.34, "#000.0", "012.3"},
                      MaskCase{1234.56, "#000.0", "1234.6"}, MaskCase{1.234, "#0.00", "1.23"},
                      MaskCase{0, "0.00", "0.00"}, MaskCase{-0.004, "0.00", "0.00"},
                      MaskCase{-0.0, "#0.00", "0.00"}, MaskCase{123456789012, "0", "123456789012"},
                      MaskCase{1e20, "0", "100000000000000000000"},
                      MaskCase{1.5, "0.000###########", "1.500"},
                      MaskCase{1.23456789, "0.000###########", "1.23456789"},
                      MaskCase{0.1, "0.0########################", "0.1"},
                      MaskCase{1.0 / 3, "0.0########################", "0.3333333333333333"},
                      MaskCase{100, "0.0########################", "100.0"}));

INSTANTIATE_TEST_SUITE_P(Literals, FormatMaskTable,
                         ::testing::Values(MaskCase{1.5, "0.00div", "1.50div"},
                                           MaskCase{-6, "0.00div", "-6.00div"},
                                           MaskCase{-1.5, "#0.00div", "-1.50div"},
                                           MaskCase{123.45, "#000.0dB", "123.5dB"}, MaskCase{2.4, "0s", "2s"},
                                           MaskCase{7, "<0>", "<7>"}));

// "%" shows the value times 100, moved on the decimal text so no binary noise reaches the rounding.
INSTANTIATE_TEST_SUITE_P(Percent, FormatMaskTable,
                         ::testing::Values(MaskCase{0.5, "00.0%", "50.0%"}, MaskCase{0.05, "00.0%", "05.0%"},
                                           MaskCase{0.0005, "0.00%", "0.05%"},
                                           MaskCase{0.12345, "0.00%", "12.35%"},
                                           MaskCase{-0.2, "0.00%", "-20.00%"},
                                           MaskCase{1, "00.0%", "100.0%"}));

INSTANTIATE_TEST_SUITE_P(
    Exponent, FormatMaskTable,
    ::testing::Values(MaskCase{12345, "0.00E+00", "1.23E+04"}, MaskCase{0.000123, "0.00E-00", "1.23E-04"},
                      MaskCase{12345, "0.00E-00", "1.23E04"}, MaskCase{1, "0.00E+00", "1.00E+00"},
                      MaskCase{9.996, "0.00E+00", "1.00E+01"}, MaskCase{0, "0.00E+00", "0.00E+00"},
                      MaskCase{-0.5, "0.00E-00", "-5.00E-01"}, MaskCase{-1.5e-12, "0.00E+00", "-1.50E-12"},
                      MaskCase{6.02e23, "0.00e+00", "6.02e+23"}, MaskCase{1e300, "0.00E+00", "1.00E+300"}));

INSTANTIATE_TEST_SUITE_P(
    NoNumber, FormatMaskTable,
    ::testing::Values(MaskCase{std::numeric_limits<double>::infinity(), "#0.00", "???.?"},
                      MaskCase{-std::numeric_limits<double>::infinity(), "0.000", "???.?"},
                      MaskCase{std::nan(""), "0.00%", "???.?"}));

TEST(FormatMaskScaled, MovesThePointOnTheDecimalText)
{
    // 0.001235 / 0.001 in binary is 1.2349999..., which would round down.
    EXPECT_EQ(FormatMaskScaled(0.001235, 3, QStringLiteral("#.00")), QStringLiteral("1.24"));
    EXPECT_EQ(FormatMaskScaled(5e-07, 9, QStringLiteral("###.0")), QStringLiteral("500.0"));
    EXPECT_EQ(FormatMaskScaled(2500000, -6, QStringLiteral("#.00")), QStringLiteral("2.50"));
    EXPECT_EQ(FormatMaskScaled(0, 12, QStringLiteral("0.000")), QStringLiteral("0.000"));
}

TEST(FormatMaskSingle, RoundsOnTheSinglesOwnText)
{
    EXPECT_EQ(FormatMaskSingle(0.333f, QStringLiteral("0.000000000")), QStringLiteral("0.333000000"));
    EXPECT_EQ(FormatMaskSingle(0.005f, QStringLiteral("0.00")), QStringLiteral("0.01"));
}

struct GeneralCase {
    double value;
    const char* expected;
};

void PrintTo(const GeneralCase& c, std::ostream* os)
{
    *os << "GeneralFormat(" << c.value << ") -> \"" << c.expected << "\"";
}

class GeneralFormatTable : public ::testing::TestWithParam<GeneralCase> {};

TEST_P(GeneralFormatTable, IsPlainDecimal)
{
    EXPECT_EQ(GeneralFormat(GetParam().value), QString::fromLatin1(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(Values, GeneralFormatTable,
                         ::testing::Values(GeneralCase{0.002, "0.002"}, GeneralCase{1e-08, "0.00000001"},
                                           GeneralCase{5e-13, "0.0000000000005"},
                                           GeneralCase{2e20, "200000000000000000000"},
                                           GeneralCase{1000, "1000"}, GeneralCase{0, "0"},
                                           GeneralCase{-0.0, "0"}, GeneralCase{-1.5, "-1.5"},
                                           GeneralCase{0.1 + 0.2, "0.30000000000000004"},
                                           GeneralCase{1.0 / 3, "0.3333333333333333"},
                                           GeneralCase{123456789012345678.0, "123456789012345680"},
                                           GeneralCase{0.9999999999999999, "0.9999999999999999"},
                                           GeneralCase{std::numeric_limits<double>::infinity(), "0"},
                                           GeneralCase{std::nan(""), "0"}));

TEST(GeneralFormat, WritesTinyAndHugeValuesWithoutExponent)
{
    const QString tiny = GeneralFormat(1e-300);
    EXPECT_EQ(tiny.size(), 302);
    EXPECT_TRUE(tiny.startsWith(QStringLiteral("0.000")));
    EXPECT_TRUE(tiny.endsWith(u'1'));
    EXPECT_EQ(GeneralFormat(1e300).size(), 301);
    EXPECT_FALSE(GeneralFormat(-5e-324).contains(u'e'));
}

TEST(GeneralFormatSingle, KeepsSevenDigits)
{
    EXPECT_EQ(GeneralFormatSingle(0.0205f), QStringLiteral("0.0205"));
    EXPECT_EQ(GeneralFormatSingle(1.1f), QStringLiteral("1.1"));
    EXPECT_EQ(GeneralFormatSingle(16777216.0f), QStringLiteral("16777220"));
    EXPECT_EQ(GeneralFormatSingle(std::numeric_limits<float>::infinity()), QStringLiteral("0"));
}

} // namespace
