#include "drawtesting.h"

namespace {

struct PairCase {
    const char* text;
    bool ordered;
};

class IsChannelPairOrderedTest : public ::testing::TestWithParam<PairCase> {};

TEST_P(IsChannelPairOrderedTest, OnlyTheTwoPairsInOrder)
{
    EXPECT_EQ(IsChannelPairOrdered(QString::fromLatin1(GetParam().text)), GetParam().ordered);
}

INSTANTIATE_TEST_SUITE_P(Texts, IsChannelPairOrderedTest,
                         ::testing::Values(PairCase{"CH3CH4", true}, PairCase{"CHANNEL3CHANNEL4", true},
                                           PairCase{"CHAN3CHAN4", true}, PairCase{"CH1CH2", true},
                                           PairCase{"CHANNEL1CHANNEL2", true}, PairCase{"chan1chan2", true},
                                           PairCase{"CH1CH4", false}, PairCase{"CH2CH3", false},
                                           PairCase{"CH2CH1", false}, PairCase{" CH1CH2", false},
                                           PairCase{"", false}));

TEST(AskChannelPairOrdered, WithoutAnInstrumentThePairIsNotOrdered)
{
    EXPECT_FALSE(AskChannelPairOrdered());
}

} // namespace
