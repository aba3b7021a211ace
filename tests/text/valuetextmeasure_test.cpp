#include "text/valuetext.h"
#include "textcase.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

struct MeasureCase {
    const char* routine;
    MeasureText (*parts)(double);
    double value;
    const char* number;
    int unitIndex;
    const char* text;
};

void PrintTo(const MeasureCase& c, std::ostream* os)
{
    *os << c.routine << "(" << c.value << ") -> \"" << c.text << "\"";
}

class MeasureTable : public ::testing::TestWithParam<MeasureCase> {};

TEST_P(MeasureTable, GivesNumberUnitAndText)
{
    const MeasureCase& c = GetParam();
    const MeasureText m = c.parts(c.value);
    EXPECT_EQ(m.number, QString::fromLatin1(c.number));
    EXPECT_EQ(m.unitIndex, c.unitIndex);
    EXPECT_EQ(m.text(), QString::fromLatin1(c.text));
}

constexpr double Inf = std::numeric_limits<double>::infinity();
const double NaN = std::nan("");

#define VOLT(v, n, i, t)                                                                                     \
    MeasureCase                                                                                              \
    {                                                                                                        \
        "MeasureVoltParts", MeasureVoltParts, v, n, i, t                                                     \
    }
#define TIME(v, n, i, t)                                                                                     \
    MeasureCase                                                                                              \
    {                                                                                                        \
        "MeasureTimeParts", MeasureTimeParts, v, n, i, t                                                     \
    }
#define FREQ(v, n, i, t)                                                                                     \
    MeasureCase                                                                                              \
    {                                                                                                        \
        "MeasureFreqParts", MeasureFreqParts, v, n, i, t                                                     \
    }
#define RATIO(v, n, t)                                                                                       \
    MeasureCase                                                                                              \
    {                                                                                                        \
        "MeasureRatioParts", MeasureRatioParts, v, n, 0, t                                                   \
    }

INSTANTIATE_TEST_SUITE_P(
    Volt, MeasureTable,
    ::testing::Values(VOLT(0, "0.000", 4, "0.000uV"), VOLT(1e9, "???.?", 2, "???.?V"),
                      VOLT(999999999, "1000.000", 0, "1000.000MV"), VOLT(1e6, "1.000", 0, "1.000MV"),
                      VOLT(1000, "1.000", 1, "1.000kV"), VOLT(1, "1.000", 2, "1.000V"),
                      VOLT(0.001, "1.000", 3, "1.000mV"), VOLT(1e-06, "1.000", 4, "1.000uV"),
                      VOLT(5e-07, "0.500", 4, "0.500uV"), VOLT(-0.0005, "-500.000", 4, "-500.000uV"),
                      VOLT(-0.001, "-1.000", 3, "-1.000mV"), VOLT(-1, "-1.000", 2, "-1.000V"),
                      VOLT(-1000, "-1.000", 1, "-1.000kV"), VOLT(-1e6, "-1.000", 0, "-1.000MV"),
                      VOLT(-1e9, "???.?", 2, "???.?V"), VOLT(NaN, "???.?", 2, "???.?V"),
                      VOLT(Inf, "???.?", 2, "???.?V")));

INSTANTIATE_TEST_SUITE_P(
    Time, MeasureTable,
    ::testing::Values(TIME(-0.5, "-500.000", 3, "-500.000ms"), TIME(0, "0.000", 0, "0.000ps"),
                      TIME(1000, "???.?", 4, "???.?s"), TIME(999, "999.000", 4, "999.000s"),
                      TIME(1, "1.000", 4, "1.000s"), TIME(0.001, "1.000", 3, "1.000ms"),
                      TIME(1e-06, "1.000", 2, "1.000us"), TIME(1e-09, "1.000", 1, "1.000ns"),
                      TIME(1e-12, "1.000", 0, "1.000ps"), TIME(5e-13, "0.500", 0, "0.500ps"),
                      TIME(-5e-10, "-500.000", 0, "-500.000ps"), TIME(-1e-09, "-1.000", 1, "-1.000ns"),
                      TIME(-1e-06, "-1.000", 2, "-1.000us"), TIME(-0.001, "-1.000", 3, "-1.000ms"),
                      TIME(-1, "-1.000", 4, "-1.000s"), TIME(-1000, "???.?", 4, "???.?s"),
                      TIME(-1e-16, "0.000", 0, "0.000ps"), TIME(-1e-15, "-0.001", 0, "-0.001ps"),
                      TIME(0.0012345, "1.235", 3, "1.235ms")));

INSTANTIATE_TEST_SUITE_P(Freq, MeasureTable,
                         ::testing::Values(FREQ(-1, "???.?", 3, "???.?Hz"), FREQ(1e12, "???.?", 3, "???.?Hz"),
                                           FREQ(1e9, "1.000", 0, "1.000GHz"),
                                           FREQ(1e6, "1.000", 1, "1.000MHz"),
                                           FREQ(1000, "1.000", 2, "1.000KHz"), FREQ(1, "1.000", 3, "1.000Hz"),
                                           FREQ(0.5, "500.000", 4, "500.000mHz"),
                                           FREQ(0, "0.000", 4, "0.000mHz"),
                                           FREQ(NaN, "???.?", 3, "???.?Hz")));

INSTANTIATE_TEST_SUITE_P(Ratio, MeasureTable,
                         ::testing::Values(RATIO(0.5, "50.00", "50.00%"), RATIO(0.12345, "12.35", "12.35%"),
                                           RATIO(-0.1, "-10.00", "-10.00%"), RATIO(0, "0.00", "0.00%"),
                                           RATIO(NaN, "???.?", "???.?%")));

TEST(MeasureText, FullTextsMatchTheirParts)
{
    EXPECT_EQ(MeasureVoltText(0), QStringLiteral("0.000uV"));
    EXPECT_EQ(MeasureTimeText(-0.5), QStringLiteral("-500.000ms"));
    EXPECT_EQ(MeasureFreqText(-1), QStringLiteral("???.?Hz"));
    EXPECT_EQ(MeasureRatioText(0.25), QStringLiteral("25.00%"));
    EXPECT_EQ(MeasureFreqParts(1000).unit, QStringLiteral("KHz"));
}

} // namespace
