#include "analysis/datarecord.h"

#include "acquire/readdatatable.h"
#include "acquire/wavebytes.h"

#include <algorithm>

std::array<DataRecord, DataRecordCount> DataRecords;

void TakeTableReading(DataRecord& record)
{
    record.HasData = true;
    record.Count = WaveCount;
    record.Legend = DataHeaderText;
    record.Voltages.assign(DataValueText.begin(), DataValueText.end());
    record.Times.assign(DataTimeText.begin(), DataTimeText.end());
    record.IsPeak = LastTableReading.peak;
    if (record.IsPeak) record.Voltages2.assign(DataValueText2.begin(), DataValueText2.end());
    record.Start = LastTableReading.start;
    record.End = LastTableReading.end;
}

DataRows DataRowsOf(const DataRecord& record)
{
    if (record.Count <= 0) return {};
    const int first = std::max(2 * record.Start + 1, 1);
    const int last = std::min(2 * (record.End + 1), TableTextLast);
    return {first, last};
}

void ResetDataRecords()
{
    for (DataRecord& record : DataRecords)
        record = DataRecord{};
}
