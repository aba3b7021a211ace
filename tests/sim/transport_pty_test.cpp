// The RS232 line's reply form. The pseudo-terminal itself is driven by the VISA
// layer's tests over every transport (tests/visa/simtransports_test.cpp).

#include "transport/ptyserver.h"

#include <gtest/gtest.h>

namespace {

struct SerialFormCase {
    QByteArray reply;
    QByteArray onTheLine;
};

class SerialForm : public ::testing::TestWithParam<SerialFormCase> {};

TEST_P(SerialForm, TextPassesBlocksCarryALittleEndianLength)
{
    EXPECT_EQ(serialForm(GetParam().reply), GetParam().onTheLine);
}

INSTANTIATE_TEST_SUITE_P(Replies, SerialForm,
                         ::testing::Values(SerialFormCase{"KORVA,KV7204B,1,2\n", "KORVA,KV7204B,1,2\n"},
                                           SerialFormCase{"#13abc\n", QByteArray("\x03\0\0\0abc", 7)},
                                           SerialFormCase{"#15a\nb\nc\n", QByteArray("\x05\0\0\0a\nb\nc", 9)},
                                           SerialFormCase{"#0\n",
                                                          "#0\n"}, // not a definite-length block: left alone
                                           SerialFormCase{"#9", QByteArray("\0\0\0\0", 4)}));

} // namespace
