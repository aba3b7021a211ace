#include "text/formatmask.h"
#include "textcase.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

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
