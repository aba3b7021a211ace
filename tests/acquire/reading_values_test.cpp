// The numbers of a data table: the channel's position in codes, the sample
// rate's text, and the export text of a record.
#include "acquire/readdatatable.h"
#include "analysis/dataexport.h"

#include <gtest/gtest.h>

namespace {

struct PositionCase {
    float offset;
    float scale;
    std::optional<int16_t> pos;
};

class Position : public ::testing::TestWithParam<PositionCase> {};

TEST_P(Position, RoundsHalfACodeAwayThenToEven)
{
    EXPECT_EQ(PositionCodes(GetParam().offset, GetParam().scale), GetParam().pos);
}

INSTANTIATE_TEST_SUITE_P(Cases, Position,
                         ::testing::Values(PositionCase{0, 1, 0},                 // -0.5 rounds to even 0
                                           PositionCase{2, 1, 50},                // 50.5 to 50
                                           PositionCase{2.04f, 1, 52},            // 51.5 to 52
                                           PositionCase{-2, 1, -50},              // -50.5 to -50
                                           PositionCase{-0.02f, 1, -1},           // -1.0
                                           PositionCase{1, 0, std::nullopt},      // no scale
                                           PositionCase{2000, 1, std::nullopt})); // beyond 16 bits

TEST(SampleRate, TakesSaForTheHertz)
{
    EXPECT_EQ(SampleRateText("1.000e+08"), "100.0MSa");
    EXPECT_EQ(SampleRateText("2.500e+03\n"), "2.500kSa");
    EXPECT_EQ(SampleRateText("garbage"), "??.???");
}

DataRecord peakRecord()
{
    DataRecord r;
    r.Count = 4;
    r.IsPeak = true;
    r.Start = 1;
    r.End = 2; // rows at indices 3 to 6
    r.Legend = "CH1 1.00V\r\n Size=4";
    r.Times = {"t0", "t1", "t2", "t3", "t4", "t5", "t6"};
    r.Voltages = {"", "", "", "v3", "v4", "v5"}; // index 6 is beyond the column
    r.Voltages2 = {"", "", "", "w3", "w4", "w5", "w6"};
    return r;
}

TEST(DataExport, PeakTableHasTheSecondColumnAndRowsFromOne)
{
    const QString text = DataExportText(peakRecord());

    EXPECT_EQ(text, "Selvane -[Data]\r\n\r\n\r\n\r\nCH1 1.00V\r\n Size=4\r\n\r\n\r\n"
                    "NO.\tTime\tVoltage\tVoltage2\r\n\r\n"
                    "1\tt3\tv3\tw3\r\n2\tt4\tv4\tw4\r\n3\tt5\tv5\tw5\r\n4\tt6\t\tw6\r\n");
}

TEST(DataExport, RecordWithoutSamplesHasNoRows)
{
    DataRecord r = peakRecord();
    r.Count = 0;
    r.IsPeak = false;
    EXPECT_TRUE(DataExportText(r).endsWith("NO.\tTime\tVoltage\r\n\r\n"));
}

} // namespace
