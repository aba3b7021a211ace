// Numbers as the instrument's commands carry them, and its time and volt ladders.
#include "model/simtext.h"
#include "model/timeladder.h"

#include <gtest/gtest.h>

namespace {

struct NumberCase {
    const char* text;
    double value; // NaN: refused
};

class ParseNumberTest : public ::testing::TestWithParam<NumberCase> {};

TEST_P(ParseNumberTest, ReadsTheFormsTheProgramSends)
{
    const std::optional<double> parsed = parseNumber(GetParam().text);
    if (std::isnan(GetParam().value)) {
        EXPECT_FALSE(parsed.has_value());
        return;
    }
    ASSERT_TRUE(parsed.has_value());
    EXPECT_NEAR(*parsed, GetParam().value, std::abs(GetParam().value) * 1e-12);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, ParseNumberTest,
    ::testing::Values(NumberCase{"0.5", 0.5}, NumberCase{"  -2 ", -2.0}, NumberCase{"500.0e-6", 500e-6},
                      NumberCase{"2.000E0", 2.0}, NumberCase{"100MV", 0.1}, NumberCase{"1.00KV", 1000.0},
                      NumberCase{"1US", 1e-6}, NumberCase{"20.0NS", 20e-9}, NumberCase{"0.40div", 0.4},
                      NumberCase{".5", 0.5}, NumberCase{"", NAN}, NumberCase{"abc", NAN},
                      NumberCase{"1e999", NAN}, NumberCase{"1.0QV", NAN}, NumberCase{"1,5", NAN}));

TEST(LadderTest, TimeScaleSnapsToTheLadderOrIsRefused)
{
    EXPECT_DOUBLE_EQ(snapTimeScale(1.01e-6).value(), 1e-6);
    EXPECT_DOUBLE_EQ(snapTimeScale(5e-9).value(), 5e-9);
    EXPECT_FALSE(snapTimeScale(3e-3).has_value());
    EXPECT_DOUBLE_EQ(timeScaleStep(50.0, 1), 50.0); // the end stays
    EXPECT_DOUBLE_EQ(timeScaleStep(1e-9, -3), 1e-9);
    EXPECT_DOUBLE_EQ(timeScaleStep(1e-3, -4), 50e-6);
}

TEST(LadderTest, VoltStepsCoarseAndFine)
{
    EXPECT_DOUBLE_EQ(coarseVoltStep(2e-3, -1), 2e-3);
    EXPECT_DOUBLE_EQ(coarseVoltStep(2e-3, 1), 5e-3);
    EXPECT_DOUBLE_EQ(coarseVoltStep(10.0, 1), 10.0);
    EXPECT_DOUBLE_EQ(coarseVoltStep(0.3, 1), 0.5); // from between two ladder values
    EXPECT_NEAR(fineVoltStep(2e-3, 1), 2.05e-3, 1e-12);
    EXPECT_NEAR(fineVoltStep(5e-3, -1), 4.95e-3, 1e-12);
    EXPECT_NEAR(fineVoltStep(5e-3, 1), 5.1e-3, 1e-12);
    EXPECT_DOUBLE_EQ(fineVoltStep(10.0, 1), 10.0);
}

} // namespace
