#include "frame/commstatus.h"
#include "support/freshstate.h"

#include <gtest/gtest.h>

namespace {

using CommStatus = FreshStateTest;

// The texts themselves are a table; what matters is the prefix and that codes
// outside the table, the gap at 1005 among them, fall to the catch-all.
TEST_F(CommStatus, CodesShowTheirTextAndUnknownCodesTheCatchAll)
{
    const std::pair<int, const char*> cases[] = {
        {3, "Change in CTS Detected"}, {1011, "Error retrieving DCB"}, {1005, "Unknown error or event"},
        {0, "Unknown error or event"}, {-1, "Unknown error or event"}, {1012, "Unknown error or event"}};
    for (const auto& [code, text] : cases) {
        ResetCommStatus();
        EXPECT_EQ(CommStatusText(code), QStringLiteral("Status: ") + QLatin1String(text)) << code;
    }
}

TEST_F(CommStatus, AnEventOnceSeenOutranksLaterErrors)
{
    EXPECT_EQ(CommStatusText(comEventFrame), "Status: Framing Error");
    EXPECT_TRUE(CommStatusText(comEvSend).isNull()) << "sending and receiving leave the panel";
    EXPECT_TRUE(CommStatusText(comEvReceive).isNull());
    EXPECT_EQ(StatusErrorText, "Framing Error");
    EXPECT_EQ(CommStatusText(comEvRing), "Status: The Phone is Ringing");
    EXPECT_EQ(CommStatusText(comEventRxParity), "Status: The Phone is Ringing");
    EXPECT_EQ(StatusErrorText, "Parity Error");
    EXPECT_EQ(CommStatusText(comEvCD), "Status: Change in CD Detected");
}

TEST_F(CommStatus, PortErrorsLandOnClassicCodes)
{
    EXPECT_EQ(CommCodeOfSerialError(QSerialPort::NoError), 0);
    EXPECT_EQ(CommCodeOfSerialError(QSerialPort::ReadError), comEventOverrun);
    EXPECT_EQ(CommCodeOfSerialError(QSerialPort::WriteError), comEventTxFull);
    for (auto error : {QSerialPort::ResourceError, QSerialPort::PermissionError, QSerialPort::TimeoutError})
        EXPECT_EQ(CommStatusText(CommCodeOfSerialError(error)), "Status: Unknown error or event");
}

} // namespace
