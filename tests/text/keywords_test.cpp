// The keywords follow the language in force when none is given; every
// keyword's table is in data/texttables.txt.
#include "text/keywords.h"
#include "textcase.h"

#include <gtest/gtest.h>

namespace {

TEST(Keywords, FollowTheLanguageInForceByDefault)
{
    const int saved = Language;
    Language = LanguageChinese;
    EXPECT_EQ(CouplingFromReply(QStringLiteral("DC")), QStringLiteral("直流"));
    EXPECT_EQ(TriggerSourceToWire(QStringLiteral("市电")), QStringLiteral("ACLINE"));
    Language = LanguageEnglish;
    EXPECT_EQ(CouplingFromReply(QStringLiteral("DC")), QStringLiteral("DC"));
    Language = saved;
}

} // namespace
