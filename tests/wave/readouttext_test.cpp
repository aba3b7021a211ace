#include "drawtesting.h"
#include "wave/readouttext.h"

namespace {

struct NumberCase {
    double value;
    const char* text;
};

void PrintTo(const NumberCase& c, std::ostream* os)
{
    *os << c.value << " -> \"" << c.text << '"';
}

class ConvertVoltToStrTest : public ::testing::TestWithParam<NumberCase> {};
TEST_P(ConvertVoltToStrTest, Text)
{
    EXPECT_EQ(ConvertVoltToStr(GetParam().value), QString::fromLatin1(GetParam().text));
}
INSTANTIATE_TEST_SUITE_P(Volts, ConvertVoltToStrTest,
                         ::testing::Values(NumberCase{0, "0.0mV"}, NumberCase{0.15, "150.0mV"},
                                           NumberCase{0.99996, "1000.0mV"}, NumberCase{1, "1.0V"},
                                           NumberCase{8, "8.0V"}, NumberCase{12.345, "12.3V"}));

class ConvertTimeToStrTest : public ::testing::TestWithParam<NumberCase> {};
TEST_P(ConvertTimeToStrTest, Text)
{
    EXPECT_EQ(ConvertTimeToStr(GetParam().value), QString::fromLatin1(GetParam().text));
}
INSTANTIATE_TEST_SUITE_P(Times, ConvertTimeToStrTest,
                         ::testing::Values(NumberCase{1.5, "1.50s"}, NumberCase{1, "1.00s"},
                                           NumberCase{0.0098, "9.80ms"}, NumberCase{0.001, "1.00ms"},
                                           NumberCase{0.0120932, "12.09ms"}, NumberCase{2e-5, "20.00us"},
                                           NumberCase{5e-9, "5.00ns"}, NumberCase{5e-12, "5.00ps"},
                                           NumberCase{0, "0.000s"},
                                           // Below a picosecond, negative or no number: no text at all.
                                           NumberCase{9e-13, ""}, NumberCase{-0.001, ""},
                                           NumberCase{std::nan(""), ""}));

TEST(ConvertTimeToStr, HandsBackTheValueInTheUnitOfTheText)
{
    double scaled = -1;
    ConvertTimeToStr(0.0025, &scaled);
    EXPECT_DOUBLE_EQ(scaled, 2.5);
    ConvertTimeToStr(0, &scaled);
    EXPECT_EQ(scaled, 0);
}

class ConvertFreqToStrTest : public ::testing::TestWithParam<NumberCase> {};
TEST_P(ConvertFreqToStrTest, Text)
{
    EXPECT_EQ(ConvertFreqToStr(GetParam().value), QString::fromLatin1(GetParam().text));
}
INSTANTIATE_TEST_SUITE_P(Frequencies, ConvertFreqToStrTest,
                         ::testing::Values(NumberCase{2.5e9, "2.50GHz"}, NumberCase{1e6, "1.00MHz"},
                                           NumberCase{999999, "1000.00KHz"}, NumberCase{1000, "1.00KHz"},
                                           NumberCase{82.712985938792, "82.71Hz"},
                                           NumberCase{0.5, "0.50Hz"}));

struct TimeTextCase {
    const char* text;
    double seconds;
};

void PrintTo(const TimeTextCase& c, std::ostream* os)
{
    *os << '"' << c.text << "\" -> " << c.seconds;
}

class GetTimeVluTest : public ::testing::TestWithParam<TimeTextCase> {};
TEST_P(GetTimeVluTest, Seconds)
{
    EXPECT_DOUBLE_EQ(GetTimeVlu(QString::fromUtf8(GetParam().text)), GetParam().seconds);
}
INSTANTIATE_TEST_SUITE_P(
    Texts, GetTimeVluTest,
    ::testing::Values(TimeTextCase{"1.50s", 1.5}, TimeTextCase{"12.09ms", 0.01209},
                      TimeTextCase{"20.00us", 2e-5}, TimeTextCase{"5.00ns", 5e-9},
                      TimeTextCase{"5.00ps", 5e-12}, TimeTextCase{"0.000s", 0},
                      // Only the first "s" counts; a letter before it that is no prefix gives 0.
                      TimeTextCase{"2.5ks", 0}, TimeTextCase{"???.?s", 0}, TimeTextCase{"s", 0},
                      TimeTextCase{"3ms5s", 0.003},
                      // Without "s" the text is a plain number.
                      TimeTextCase{"12.5", 12.5}, TimeTextCase{"", 0}, TimeTextCase{"1,5ms", 0.001}));

TEST(ReadoutTexts, EveryTimeTextReadsBackToTheNumberItShows)
{
    for (double v = 1e-12; v < 100; v *= 3.7) {
        double scaled = 0;
        const QString text = ConvertTimeToStr(v, &scaled);
        const double back = GetTimeVlu(text);
        EXPECT_NEAR(back / v, 1, 0.01) << text.toStdString();
    }
}

} // namespace
