#include "text/formatmask.h"
#include "textcase.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

TEST(GeneralFormat, WritesTinyAndHugeValuesWithoutExponent)
{
    const QString tiny = GeneralFormat(1e-300);
    EXPECT_EQ(tiny.size(), 302);
    EXPECT_TRUE(tiny.startsWith(QStringLiteral("0.000")));
    EXPECT_TRUE(tiny.endsWith(u'1'));
    EXPECT_EQ(GeneralFormat(1e300).size(), 301);
    EXPECT_FALSE(GeneralFormat(-5e-324).contains(u'e'));
}

} // namespace
