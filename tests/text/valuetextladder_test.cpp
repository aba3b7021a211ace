#include "text/valuetext.h"
#include "textcase.h"

#include <gtest/gtest.h>

namespace {

class LadderTable : public ::testing::TestWithParam<TextCase> {};

TEST_P(LadderTable, GivesTheText)
{
    const TextCase& c = GetParam();
    EXPECT_EQ(c.format(QString::fromUtf8(c.input)), QString::fromUtf8(c.expected));
}

#define T3(in, out)                                                                                          \
    TextCase                                                                                                 \
    {                                                                                                        \
        "TimeText3", TimeText3, in, out                                                                      \
    }
#define T4(in, out)                                                                                          \
    TextCase                                                                                                 \
    {                                                                                                        \
        "TimeText4", TimeText4, in, out                                                                      \
    }
#define T5(in, out)                                                                                          \
    TextCase                                                                                                 \
    {                                                                                                        \
        "TimeText5", TimeText5, in, out                                                                      \
    }
#define V3(in, out)                                                                                          \
    TextCase                                                                                                 \
    {                                                                                                        \
        "VoltText3", VoltText3, in, out                                                                      \
    }
#define FQ(in, out)                                                                                          \
    TextCase                                                                                                 \
    {                                                                                                        \
        "FreqText", FreqText, in, out                                                                        \
    }
#define DB(in, out)                                                                                          \
    TextCase                                                                                                 \
    {                                                                                                        \
        "DbText", DbText, in, out                                                                            \
    }
#define PC(in, out)                                                                                          \
    TextCase                                                                                                 \
    {                                                                                                        \
        "PercentText", PercentText, in, out                                                                  \
    }
#define PC100(in, out)                                                                                       \
    TextCase                                                                                                 \
    {                                                                                                        \
        "PercentTextOf100", PercentTextOf100, in, out                                                        \
    }

// The thresholds are singles: 99.999 itself lies below 99.999f and falls to the next rung.
INSTANTIATE_TEST_SUITE_P(
    TimeText3, LadderTable,
    ::testing::Values(T3("150", "150s"), T3("99.9991", "100s"), T3("99.999", "100.0s"), T3("10", "10.0s"),
                      T3("9.9998", "10.00s"), T3("1", "1.00s"), T3("0.5", "500ms"), T3("0.05", "50.0ms"),
                      T3("0.001", "1.00ms"), T3("0.001235", "1.24ms"), T3("0.0001", "100us"),
                      T3("2e-05", "20.0us"), T3("1e-06", "1.00us"), T3("1e-07", "100ns"),
                      T3("1e-08", "10.0ns"), T3("5e-09", "5.00ns"), T3("2e-10", "200ps"),
                      T3("1e-12", "1.00ps"), T3("9e-13", "0.00s"), T3("0", "0.00s"), T3("-0.5", "-500ms"),
                      T3("-1e-12", "-1.00ps"), T3("-9e-13", "0.00s"), T3("-150", "-150s"),
                      T3("1.000e-03\n", "1.00ms"), T3("", "0.00s"), T3("abc", "0.00s"), T3("5000", "5000s")));

INSTANTIATE_TEST_SUITE_P(TimeText4And5, LadderTable,
                         ::testing::Values(T4("0.0005", "500.0us"), T4("20", "20.00s"),
                                           T4("5e-09", "5.000ns"), T4("-0.002", "-2.000ms"),
                                           T4("1e-13", "0.000s"), T4("1e-07", "100.0ns"),
                                           T5("0.0001", "100.00us"), T5("0.02", "20.000ms"),
                                           T5("3", "3.0000s"), T5("1e-13", "0.0000s"),
                                           T5("-2e-11", "-20.000ps")));

// Megavolts exist for positive values only; the negative side overflows from -999990.
INSTANTIATE_TEST_SUITE_P(
    VoltText3, LadderTable,
    ::testing::Values(V3("2000000", "2.00MV"), V3("-2000000", "??.?V"), V3("9999900", "??.?V"),
                      V3("9999899", "10.00MV"), V3("999990", "1.00MV"), V3("999989", "1000kV"),
                      V3("-999990", "??.?V"), V3("-999989", "-1000kV"), V3("-500000", "-500kV"),
                      V3("20000", "20.0kV"), V3("1000", "1.00kV"), V3("999.99", "1.00kV"), V3("500", "500V"),
                      V3("10", "10.0V"), V3("1", "1.00V"), V3("0.5", "500mV"), V3("0.05", "50.0mV"),
                      V3("0.002", "2.00mV"), V3("0.0002", "200uV"), V3("1e-05", "10.0uV"),
                      V3("1e-06", "1.00uV"), V3("9e-07", "0.00uV"), V3("-9e-07", "0.00uV"),
                      V3("-1e-06", "-1.00uV"), V3("-0.05", "-50.0mV"), V3("0", "0.00uV"),
                      V3("1.5e+00\n", "1.50V")));

INSTANTIATE_TEST_SUITE_P(FreqText, LadderTable,
                         ::testing::Values(FQ("999999990000", "??.???"), FQ("999999989999", "1000.0GHz"),
                                           FQ("2e9", "2.000GHz"), FQ("1e8", "100.0MHz"),
                                           FQ("12345678", "12.35MHz"), FQ("1000", "1.000kHz"),
                                           FQ("999.99999", "1.000kHz"), FQ("999.9", "999.9Hz"),
                                           FQ("50", "50.00Hz"), FQ("1", "1.000Hz"), FQ("0.5", "500.0mHz"),
                                           FQ("0.001", "1.000mHz"), FQ("0.0009", "??.???"), FQ("0", "??.???"),
                                           FQ("-5", "??.???")));

INSTANTIATE_TEST_SUITE_P(DbText, LadderTable,
                         ::testing::Values(DB("10000", "****dB"), DB("9999.9", "9999.9dB"),
                                           DB("120.5", "120.5dB"), DB("12.34", "12.3dB"),
                                           DB("1.234", "1.23dB"), DB("0.5", "0.50dB"), DB("1e-07", "0.00dB"),
                                           DB("-1e-07", "0.00dB"), DB("-12.34", "-12.3dB"),
                                           DB("-9999.9", "-9999.9dB"), DB("-10000", "-****dB")));

INSTANTIATE_TEST_SUITE_P(Percent, LadderTable,
                         ::testing::Values(PC("0.5", "50.0%"), PC("0.1", "10.0%"), PC("0.099", "9.90%"),
                                           PC("0.05", "5.00%"), PC("1", "100.0%"), PC("-0.2", "-20.00%"),
                                           PC100("50", "50.0%"), PC100("33.3", "33.3%"), PC100("10", "10.0%"),
                                           PC100("9.99", "9.99%"), PC100("5", "5.00%")));

TEST(LevelDivText, DividesLevelByScale)
{
    const struct {
        const char* level;
        const char* scale;
        const char* expected;
    } cases[] = {{"0.5", "0.25", "2.00div"},  {"-0.1", "0.2", "-0.50div"},        {"15", "2", "7.50div"},
                 {"0.5\n", "1\n", "0.50div"}, {"-300", "1", "-300.00div"},        {"1.2", "0", "???.?div"},
                 {"0", "0", "???.?div"},      {"2.4e-01", "2.000e-01", "1.20div"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.level) + " / " + c.scale);
        EXPECT_EQ(LevelDivText(QString::fromLatin1(c.level), QString::fromLatin1(c.scale)),
                  QString::fromLatin1(c.expected));
    }
}

TEST(ExactTimeText, PicksTheUnitByItsBound)
{
    const struct {
        double seconds;
        const char* expected;
    } cases[] = {{1e-09, "1.0ns"},
                 {1.5e-10, "0.15ns"},
                 {2e-09, "0.002us"},
                 {1e-06, "1.0us"},
                 {0.0005, "0.5ms"},
                 {0.001, "1.0ms"},
                 {0.5, "0.5s"},
                 {1.5, "1.5s"},
                 {123.456789, "123.456789s"},
                 {0, "0.0ns"},
                 {-0.001, "-1000000.0ns"},
                 {1e-07, "0.1us"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.seconds);
        EXPECT_EQ(ExactTimeText(c.seconds), QString::fromLatin1(c.expected));
        EXPECT_EQ(ExactTimeWireText(c.seconds), QString::fromLatin1(c.expected));
    }
}

} // namespace
