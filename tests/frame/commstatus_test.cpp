#include "frame/commstatus.h"
#include "state/programstate.h"

#include <gtest/gtest.h>

namespace {

class CommStatus : public ::testing::Test {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override { ResetProgramState(); }
};

struct CodeText {
    int code;
    const char* text;
};

const CodeText everyCode[] = {
    {3, "Change in CTS Detected"},
    {4, "Change in DSR Detected"},
    {5, "Change in CD Detected"},
    {6, "The Phone is Ringing"},
    {7, "End of File Detected"},
    {1001, "Break Received"},
    {1002, "CTS Timeout"},
    {1003, "DSR Timeout"},
    {1004, "Framing Error"},
    {1006, "Overrun Error"},
    {1007, "Carrier Detect Timeout"},
    {1008, "Receive Buffer Overflow"},
    {1009, "Parity Error"},
    {1010, "Transmit Buffer Full"},
    {1011, "Error retrieving DCB"},
    {1005, "Unknown error or event"},
    {0, "Unknown error or event"},
    {-1, "Unknown error or event"},
};

TEST_F(CommStatus, EveryCodeShowsItsText)
{
    for (const CodeText& entry : everyCode) {
        ResetCommStatus();
        EXPECT_EQ(CommStatusText(entry.code), QStringLiteral("Status: ") + QString::fromLatin1(entry.text))
            << entry.code;
    }
}

TEST_F(CommStatus, SendAndReceiveLeaveThePanel)
{
    CommStatusText(comEventFrame);
    EXPECT_TRUE(CommStatusText(comEvSend).isNull());
    EXPECT_TRUE(CommStatusText(comEvReceive).isNull());
    EXPECT_EQ(StatusErrorText, "Framing Error");
}

TEST_F(CommStatus, AnEventOnceSeenOutranksLaterErrors)
{
    EXPECT_EQ(CommStatusText(comEventFrame), "Status: Framing Error");
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
