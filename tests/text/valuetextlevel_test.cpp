#include "text/valuetext.h"
#include "textcase.h"

#include <QMap>
#include <QStringList>
#include <gtest/gtest.h>

namespace {

// Answers from a table and records every query in order.
class LevelToVoltsTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        previous = SetLevelQuery([this](const QString& query) {
            asked << query;
            return replies.value(query);
        });
    }
    void TearDown() override { SetLevelQuery(previous); }

    QMap<QString, QString> replies;
    QStringList asked;
    InstrumentQuery previous;
};

TEST_F(LevelToVoltsTest, ChannelAsksScaleBeforeOffset)
{
    replies[QStringLiteral(":CHANNEL2:SCALE?")] = QStringLiteral("5.000e-01\n");
    replies[QStringLiteral(":CHANNEL2:OFFSET?")] = QStringLiteral("1.000e-01\n");
    EXPECT_EQ(LevelToVolts(QStringLiteral("2.00div"), QStringLiteral("CHANNEL2")), QStringLiteral("0.9"));
    EXPECT_EQ(asked, QStringList({QStringLiteral(":CHANNEL2:SCALE?"), QStringLiteral(":CHANNEL2:OFFSET?")}));
}

TEST_F(LevelToVoltsTest, KeepsArithmeticNoiseOutOfTheCommand)
{
    replies[QStringLiteral(":CHANNEL1:SCALE?")] = QStringLiteral("0.1");
    EXPECT_EQ(LevelToVolts(QStringLiteral("1.20div"), QStringLiteral("CHANNEL1")), QStringLiteral("0.12"));
    replies[QStringLiteral(":CHANNEL4:SCALE?")] = QStringLiteral("2e-3");
    replies[QStringLiteral(":CHANNEL4:OFFSET?")] = QStringLiteral("-0.5");
    EXPECT_EQ(LevelToVolts(QStringLiteral("-6.00div"), QStringLiteral("CHANNEL4")), QStringLiteral("0.488"));
}

TEST_F(LevelToVoltsTest, ExternalAndLineSourcesAskNothing)
{
    const struct {
        const char* div;
        const char* source;
        const char* volts;
    } cases[] = {{"1.00div", "EXT", "0.2"}, {"-2.00div", "EXT5", "-2"}, {"3.00div", "ACLINE", "0"},
                 {"3.00div", "D3", "0"},    {"1.00div", "CH1", "0"},    {"1.00div", "", "0"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_EQ(LevelToVolts(QString::fromLatin1(c.div), QString::fromLatin1(c.source)),
                  QString::fromLatin1(c.volts));
    }
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(LevelToVoltsTest, SilentInstrumentGivesZero)
{
    EXPECT_EQ(LevelToVolts(QStringLiteral("2.00div"), QStringLiteral("CHANNEL3")), QStringLiteral("0"));
    EXPECT_EQ(asked.size(), 2);
}

TEST(LevelQuerySeam, DefaultAnswersNothing)
{
    const InstrumentQuery previous = SetLevelQuery(nullptr);
    EXPECT_EQ(LevelToVolts(QStringLiteral("2.00div"), QStringLiteral("CHANNEL1")), QStringLiteral("0"));
    SetLevelQuery(previous);
}

} // namespace
