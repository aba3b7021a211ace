#include "datarows.h"
#include "visa/findpattern.h"

#include <gtest/gtest.h>

using selvane::visa::FindPattern;

namespace {

// The "match" and "reject" rows of data/names.txt: a pattern matches the whole
// name, ignoring case; a malformed one is refused.
TEST(FindPattern, EveryRowOfTheTable)
{
    int rows = 0;
    for (const QStringList& f : DataRows("visa/data/names.txt")) {
        const std::string pattern = f.value(1).toStdString();
        SCOPED_TRACE(f.join(u' ').toStdString());
        if (f[0] == QLatin1String("reject")) {
            EXPECT_FALSE(FindPattern::compile(pattern));
        } else if (f[0] == QLatin1String("match")) {
            ASSERT_EQ(f.size(), 4);
            const auto compiled = FindPattern::compile(pattern);
            ASSERT_TRUE(compiled);
            EXPECT_EQ(compiled->matches(f[2].toStdString()), f[3] == QLatin1String("yes"));
        } else {
            continue;
        }
        ++rows;
    }
    EXPECT_EQ(rows, 63);
}

TEST(FindPattern, RejectsNestingBeyondItsLimitWithoutExhaustingTheStack)
{
    const std::string deep = std::string(10000, '(') + "a" + std::string(10000, ')');
    EXPECT_FALSE(FindPattern::compile(deep));
    const std::string fine = std::string(20, '(') + "a" + std::string(20, ')');
    EXPECT_TRUE(FindPattern::compile(fine));
}

} // namespace
