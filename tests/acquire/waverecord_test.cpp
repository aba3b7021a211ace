#include "acquire/tabletext.h"
#include "acquire/wavebytes.h"
#include "acquire/waverecord.h"
#include "datarows.h"
#include "state/programstate.h"

#include <gtest/gtest.h>

namespace {

// Every row of data/waverecord.txt: the split screen by trigger mode and shared
// spectrum, and the exponent's sign by size in the table's number codes.
TEST(WaveRecord, EveryRowOfTheTable)
{
    int rows = 0;
    for (const QStringList& f : DataRows("acquire/data/waverecord.txt")) {
        SCOPED_TRACE(f.join(u' ').toStdString());
        if (f[0] == QLatin1String("split"))
            EXPECT_EQ(SplitScreenOf(f[1], f[2], int8_t(f[3].toInt())), f[4] == QLatin1String("yes"));
        else
            EXPECT_EQ(FormatCode(f[1].toFloat()), f[2]);
        ++rows;
    }
    EXPECT_EQ(rows, 15);
}

TEST(WaveRecord, ChannelAccessorsReachTheirOwnFields)
{
    WaveRecord r;
    r.setShowChannel(3, true);
    r.setShowChannel(0, true);
    r.setShowChannel(5, true);
    EXPECT_TRUE(r.ShowCH3);
    EXPECT_FALSE(r.ShowCH1 || r.ShowCH2 || r.ShowCH4 || r.ShowMath);
    EXPECT_FALSE(r.showChannel(0));
    EXPECT_FALSE(r.showChannel(5));
    r.channelPeak(4).push_back(7);
    EXPECT_EQ(r.WaveCH4Peak, WaveArray{7});
    EXPECT_TRUE(r.WaveCH4.empty());
}

TEST(ResetProgramState, ClearsSnapshotsBlockAndTables)
{
    WaveRecords[17].HasData = true;
    WaveRecords[17].WaveCH1.assign(10, 1);
    CurrentWaveIndex = 5;
    WaveBytes[6200] = 9;
    WaveCount = 3;
    DataValueText2[10240] = QStringLiteral("x");
    DataHeaderText = QStringLiteral("CH1 ");
    ResetProgramState();
    EXPECT_FALSE(WaveRecords[17].HasData);
    EXPECT_TRUE(WaveRecords[17].WaveCH1.empty());
    EXPECT_EQ(CurrentWaveIndex, 0);
    EXPECT_EQ(WaveBytes[6200], 0);
    EXPECT_EQ(WaveCount, 0);
    EXPECT_TRUE(DataValueText2[10240].isEmpty());
    EXPECT_TRUE(DataHeaderText.isEmpty());
}

} // namespace
