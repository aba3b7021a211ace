#include "text/steplists.h"
#include "textcase.h"

#include <gtest/gtest.h>

namespace {

TEST(SetCtrlDialogTimeDivNum, LowEndFollowsTheBandwidthClass)
{
    const struct {
        int bandwidthClass;
        qsizetype count;
        const char* first;
    } cases[] = {{0, 28, "20.00ns"}, {1, 29, "10.00ns"}, {2, 30, "5.000ns"}, {3, 31, "2.000ns"},
                 {4, 32, "1.000ns"}, {5, 32, "1.000ns"}, {-1, 32, "1.000ns"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.bandwidthClass);
        const QStringList steps = SetCtrlDialogTimeDivNum(QStringLiteral("Y-T"), c.bandwidthClass);
        EXPECT_EQ(steps.size(), c.count);
        EXPECT_EQ(steps.first(), QString::fromLatin1(c.first));
        EXPECT_EQ(steps.last(), QStringLiteral("20.00s"));
        EXPECT_EQ(steps.indexOf(QStringLiteral("20.00ns")), c.count - 28);
    }
}

TEST(SetCtrlDialogTimeDivNum, XyAndRollGoOnToFiftySeconds)
{
    const QStringList xy = SetCtrlDialogTimeDivNum(QStringLiteral("X-Y"), 4);
    EXPECT_EQ(xy, SetCtrlDialogTimeDivNum(QStringLiteral("Y-T"), 4) << QStringLiteral("50.00s"));
    EXPECT_EQ(SetCtrlDialogTimeDivNum(QStringLiteral("ROLL\n"), 0).last(), QStringLiteral("50.00s"));
    // The reply as sent is compared: the tree's "Roll" and an empty reply stop at 20 s.
    EXPECT_EQ(SetCtrlDialogTimeDivNum(QStringLiteral("Roll"), 0).last(), QStringLiteral("20.00s"));
    EXPECT_EQ(SetCtrlDialogTimeDivNum(QString(), 0).last(), QStringLiteral("20.00s"));
}

TEST(SetCtrlDialogVoltDivNum, ElevenStepsPerProbe)
{
    const struct {
        const char* probe;
        const char* first;
        const char* last;
    } cases[] = {{"1X", "2.00mV", "5.00V"},
                 {"10X", "20.0mV", "50.0V"},
                 {"100X", "200mV", "500V"},
                 {"1000X", "2.00V", "5kV"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.probe);
        const QStringList steps = SetCtrlDialogVoltDivNum(QString::fromLatin1(c.probe));
        ASSERT_EQ(steps.size(), 11);
        EXPECT_EQ(steps.first(), QString::fromLatin1(c.first));
        EXPECT_EQ(steps.last(), QString::fromLatin1(c.last));
    }
    EXPECT_EQ(SetCtrlDialogVoltDivNum(QStringLiteral("1000X")).mid(7),
              QStringList({"500V", "1kV", "2kV", "5kV"}));
    EXPECT_TRUE(SetCtrlDialogVoltDivNum(QStringLiteral("2X")).isEmpty());
}

TEST(SetCtrlDialogTrigLevelNum, RunsFromSixToMinusSixDivisions)
{
    const QStringList steps = SetCtrlDialogTrigLevelNum();
    ASSERT_EQ(steps.size(), 301);
    EXPECT_EQ(steps.first(), QStringLiteral("6.00div"));
    EXPECT_EQ(steps[1], QStringLiteral("5.96div"));
    EXPECT_EQ(steps[150], QStringLiteral("0.00div")); // the counter is not exactly zero there
    EXPECT_EQ(steps[151], QStringLiteral("-0.04div"));
    EXPECT_EQ(steps.last(), QStringLiteral("-6.00div"));
    EXPECT_FALSE(steps.contains(QStringLiteral("-0.00div")));
}

TEST(SetCtrlDialogTrigSensitivityNum, RunsFromOneToATenth)
{
    const QStringList steps = SetCtrlDialogTrigSensitivityNum();
    ASSERT_EQ(steps.size(), 91);
    EXPECT_EQ(steps.first(), QStringLiteral("1.00div"));
    EXPECT_EQ(steps[1], QStringLiteral("0.99div"));
    EXPECT_EQ(steps.last(), QStringLiteral("0.10div"));
}

TEST(SetCtrlDialogMemOffsetNum, CountsFromZero)
{
    const QStringList steps = SetCtrlDialogMemOffsetNum(QStringLiteral("4000\n"));
    ASSERT_EQ(steps.size(), 4000);
    EXPECT_EQ(steps.first(), QStringLiteral("0"));
    EXPECT_EQ(steps.last(), QStringLiteral("3999"));
    for (const char* reply : {"0", "", "-5", "abc"})
        EXPECT_TRUE(SetCtrlDialogMemOffsetNum(QString::fromLatin1(reply)).isEmpty()) << reply;
    EXPECT_EQ(SetCtrlDialogMemOffsetNum(QStringLiteral("1e300")).size(), MemOffsetLimit);
}

} // namespace
