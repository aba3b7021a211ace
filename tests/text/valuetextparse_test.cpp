#include "text/valuetext.h"
#include "textcase.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

struct ParseCase {
    const char* routine;
    double (*parse)(const QString&);
    const char* text;
    double value;
    bool valid;
};

void PrintTo(const ParseCase& c, std::ostream* os)
{
    *os << c.routine << "(\"" << c.text << "\") -> " << c.value << (c.valid ? " valid" : " invalid");
}

class ParserTable : public ::testing::TestWithParam<ParseCase> {};

TEST_P(ParserTable, GivesValueAndValidity)
{
    const ParseCase& c = GetParam();
    ValueValid = !c.valid; // the parser must set the flag either way
    EXPECT_DOUBLE_EQ(c.parse(QString::fromUtf8(c.text)), c.value);
    EXPECT_EQ(ValueValid, c.valid);
}

#define TIME(text, value, valid)                                                                             \
    ParseCase                                                                                                \
    {                                                                                                        \
        "ParseTimeText", ParseTimeText, text, value, valid                                                   \
    }
#define VOLT(text, value, valid)                                                                             \
    ParseCase                                                                                                \
    {                                                                                                        \
        "ParseVoltText", ParseVoltText, text, value, valid                                                   \
    }
#define MVOLT(text, value, valid)                                                                            \
    ParseCase                                                                                                \
    {                                                                                                        \
        "ParseMeasureVoltText", ParseMeasureVoltText, text, value, valid                                     \
    }
#define FREQ(text, value, valid)                                                                             \
    ParseCase                                                                                                \
    {                                                                                                        \
        "ParseFreqText", ParseFreqText, text, value, valid                                                   \
    }
#define PERCENT(text, value, valid)                                                                          \
    ParseCase                                                                                                \
    {                                                                                                        \
        "ParsePercentText", ParsePercentText, text, value, valid                                             \
    }

INSTANTIATE_TEST_SUITE_P(Time, ParserTable,
                         ::testing::Values(TIME("10.00ns", 1e-08, true), TIME("500.0us", 0.0005, true),
                                           TIME("1.5ms", 0.0015, true), TIME("20ps", 2e-11, true),
                                           TIME("2s", 2, true), TIME("2.000", 2, true),
                                           TIME("1.0e-3", 0.001, true), TIME("100ns\n", 1e-07, true),
                                           TIME("100ns\nrest", 1e-07, true), TIME("-2.5us", -2.5e-06, true),
                                           TIME("", 0, true)));

// Bounds, failed measures, unknown prefixes and the no-measurement mark.
INSTANTIATE_TEST_SUITE_P(
    Invalid, ParserTable,
    ::testing::Values(TIME(">10.0us", 0, false), TIME("<1s", 0, false), TIME("*", 0, false),
                      TIME("1us\n>", 0, false), TIME("10 s", 0, false), TIME("s", 0, false),
                      TIME("9.9E+37", 0, false), VOLT("2.00MV", 0, false), VOLT("1e999V", 0, false),
                      VOLT("1e308kV", 0, false), VOLT("1e999", 0, false), MVOLT("2nV", 0, false),
                      FREQ("1.000KHz", 0, false), FREQ("50 Hz", 0, false), PERCENT("a%", 0, false),
                      PERCENT(">5%", 0, false), PERCENT("9.9E+37", 0, false)));

INSTANTIATE_TEST_SUITE_P(Volt, ParserTable,
                         ::testing::Values(VOLT("2.00mV", 0.002, true), VOLT("1kV", 1000, true),
                                           VOLT("500uV", 0.0005, true), VOLT("10nV", 1e-08, true),
                                           VOLT("3pV", 3e-12, true), VOLT("5V", 5, true),
                                           VOLT("-1.50V", -1.5, true), VOLT("0.002", 0.002, true),
                                           MVOLT("2.00MV", 2e6, true), MVOLT("1.5mV", 0.0015, true),
                                           MVOLT("1.000uV", 1e-06, true), MVOLT("3kV", 3000, true),
                                           MVOLT("-12.5V", -12.5, true)));

INSTANTIATE_TEST_SUITE_P(FreqAndPercent, ParserTable,
                         ::testing::Values(FREQ("1.000kHz", 1000, true), FREQ("2GHz", 2e9, true),
                                           FREQ("3MHz", 3e6, true), FREQ("500mHz", 0.5, true),
                                           FREQ("50Hz", 50, true), FREQ("50", 50, true),
                                           PERCENT("50.0%", 0.5, true), PERCENT("5%", 0.05, true),
                                           PERCENT("50", 0.5, true), PERCENT("-20%", -0.2, true)));

TEST(TimeTextToExponent, WritesNumberAndExponent)
{
    const struct {
        const char* text;
        const char* expected;
    } cases[] = {{"10.00ns", "10.000E-9"},
                 {"500.0us", "500.000E-6"},
                 {"1.5ms", "1.500E-3"},
                 {"20ps", "20.000E-12"},
                 {"2s", "2.000"},
                 {"1.23456789s", "1.23456789"},
                 {"0.5", "0.500"},
                 {"3ms\n", "3.000E-3"},
                 {">1us", ""},
                 {"1 s", ""},
                 {"*", ""}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(TimeTextToExponent(QString::fromLatin1(c.text)), QString::fromLatin1(c.expected));
        EXPECT_EQ(ValueValid, *c.expected != 0);
    }
}

TEST(StripAtLineFeed, KeepsWhatComesBeforeTheFirstLineFeed)
{
    EXPECT_EQ(StripAtLineFeed(QStringLiteral("RUN")), QStringLiteral("RUN"));
    EXPECT_EQ(StripAtLineFeed(QString()), QString());
    EXPECT_EQ(StripAtLineFeed(QStringLiteral("a\nb\n")), QStringLiteral("a"));
    EXPECT_EQ(StripAtLineFeed(QStringLiteral("\n")), QString());
    EXPECT_EQ(StripAtLineFeed(QStringLiteral("a\r\nb")), QStringLiteral("a\r"));
}

TEST(Val, ReadsTheLeadingNumber)
{
    const struct {
        const char* text;
        double value;
    } cases[] = {{"12abc", 12}, {"  -3.5e2x", -350}, {"1 2", 12},      {"+4", 4},  {".5", 0.5},
                 {"1e", 1},     {"1e+", 1},          {"2D3", 2000},    {"abc", 0}, {"", 0},
                 {"-", 0},      {"1.2.3", 1.2},      {"1.20div", 1.2}, {"\t7", 7}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_DOUBLE_EQ(Val(QString::fromLatin1(c.text)), c.value);
    }
    EXPECT_EQ(Val(QStringLiteral("１")), 0); // a full-width digit is no digit
}

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
