// A data table's reading against the simulator: the columns of one channel,
// worked from the instrument's codes, and the export text made from them.
#include "reading_simlink.h"

#include "acquire/operation.h"
#include "acquire/readdatatable.h"
#include "acquire/tabletext.h"
#include "acquire/wavebytes.h"
#include "analysis/dataexport.h"
#include "link/linkcommands.h"

namespace {

class TableReadingTest : public SimReadingTest {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(startSim());
        ASSERT_TRUE(connectOverSocket());
        send(":STOP");
    }
};

TEST_F(TableReadingTest, ColumnsHoldTimesAndVoltsOfTheChannel)
{
    RunReadingFrame({OperationTableCH1});

    const std::vector<int> codes = CodesOf(askBlock(":WAVEFORM:SCREENDATA? CHANNEL1"));
    ASSERT_EQ(codes.size(), 600u);
    EXPECT_EQ(WaveCount, 600);
    EXPECT_EQ(LastTableReading.start, 0);
    EXPECT_EQ(LastTableReading.end, 299);
    // 1 V a division, 2 divisions up: pos is 50 codes.
    for (const int i : {1, 150, 600})
        EXPECT_EQ(DataValueText[size_t(i)], FormatCode(float((50 - codes[size_t(i - 1)]) / 25.0))) << i;
    // 500 us a division, 50 points a division, no delay: point 300 is time 0.
    EXPECT_EQ(DataTimeText[300], FormatCode(0));
    EXPECT_EQ(DataTimeText[400], FormatCode(0.001f));
    EXPECT_TRUE(DataHeaderText.startsWith("CH1 1.00V  500.0us ")) << DataHeaderText.toStdString();
    EXPECT_TRUE(DataHeaderText.contains("Sa\r\n Size=600\r\n  [Date:")) << DataHeaderText.toStdString();

    DataRecord record;
    TakeTableReading(record);
    const QStringList lines = DataExportText(record).split("\r\n");
    ASSERT_GE(lines.size(), 612);
    EXPECT_EQ(lines[0], "Selvane -[Data]");
    EXPECT_EQ(lines[4], DataHeaderText.section("\r\n", 0, 0));
    EXPECT_EQ(lines[9], "NO.\tTime\tVoltage");
    EXPECT_EQ(lines[11], "1\t" + DataTimeText[1] + "\t" + DataValueText[1]);
    EXPECT_EQ(lines[610], "600\t" + DataTimeText[600] + "\t" + DataValueText[600]);
}

TEST_F(TableReadingTest, PeakDetectSplitsTheValuesInTwoColumns)
{
    WriteCmd(":ACQUIRE:TYPE PEAKDETECT");
    send(":STOP");
    RunReadingFrame({OperationTableCH1 + 1});

    const std::vector<int> codes = CodesOf(askBlock(":WAVEFORM:SCREENDATA? CHANNEL2"));
    ASSERT_EQ(codes.size(), 1200u);
    EXPECT_TRUE(LastTableReading.peak);
    EXPECT_EQ(WaveCount, 600);
    // 1 V a division, 2 divisions down: pos is -50 codes.
    const auto volts = [](int code) { return FormatCode(float((150 - code) / 25.0)); };
    EXPECT_EQ(DataValueText[600], volts(codes[599]));
    EXPECT_EQ(DataValueText2[1], volts(codes[600]));
    EXPECT_EQ(DataValueText2[600], volts(codes[1199]));
    EXPECT_EQ(DataValueText[601], QString()) << "the second half stays out of the first column";
}

TEST_F(TableReadingTest, ChannelOffAtStopGivesOnlyTheHeader)
{
    RunReadingFrame({OperationTableCH1 + 2});

    EXPECT_EQ(WaveCount, 0);
    EXPECT_TRUE(DataHeaderText.startsWith("CH3 ")) << DataHeaderText.toStdString();
    EXPECT_TRUE(DataHeaderText.contains(" Size=0\r\n"));
    EXPECT_EQ(DataValueText[1], QString());
    DataRecord record;
    TakeTableReading(record);
    EXPECT_TRUE(DataExportText(record).endsWith("NO.\tTime\tVoltage\r\n\r\n"));
}

} // namespace
