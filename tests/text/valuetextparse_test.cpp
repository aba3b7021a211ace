#include "text/valuetext.h"
#include "textcase.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

TEST(Val, ReportsNumbersBeyondTheDoubleRange)
{
    bool inRange = true;
    EXPECT_EQ(Val(QStringLiteral("1e999"), &inRange), 0);
    EXPECT_FALSE(inRange);
    EXPECT_EQ(Val(QStringLiteral("x"), &inRange), 0);
    EXPECT_TRUE(inRange);
}

} // namespace

namespace {

// Replies a broken link or a confused instrument may send: every routine must
// answer with a finite number or a text, whatever comes.
TEST(OddReplies, NeverBreakTheRoutines)
{
    const QString odd[] = {QString(),
                           QStringLiteral("\n"),
                           QStringLiteral("-"),
                           QStringLiteral("+."),
                           QStringLiteral("1e308"),
                           QStringLiteral("-1e308"),
                           QStringLiteral("1e-400"),
                           QStringLiteral("1e99999999999999999999"),
                           QString(400, u'9'),
                           QStringLiteral("9.9E+37"),
                           QStringLiteral("nan"),
                           QStringLiteral("inf"),
                           QStringLiteral("１２"),
                           QStringLiteral("\u0000V"),
                           QStringLiteral("mV"),
                           QStringLiteral("kHzH")};
    double (*parsers[])(const QString&) = {ParsePercentText, ParseFreqText, ParseVoltText,
                                           ParseMeasureVoltText, ParseTimeText};
    QString (*formatters[])(const QString&) = {TimeText3,   TimeText4,        TimeText5,
                                               VoltText3,   FreqText,         DbText,
                                               PercentText, PercentTextOf100, TimeTextToExponent};
    for (const QString& text : odd) {
        SCOPED_TRACE(text.toStdString());
        for (auto parse : parsers) {
            const double value = parse(text);
            EXPECT_TRUE(std::isfinite(value));
            EXPECT_TRUE(ValueValid || value == 0);
        }
        for (auto format : formatters)
            EXPECT_FALSE(format(text).contains(u'e')) << "no exponent leaks into a display text";
        EXPECT_TRUE(LevelDivText(text, text).endsWith(QStringLiteral("div")));
        EXPECT_FALSE(GeneralFormat(Val(text)).isEmpty());
    }
}

} // namespace
