#pragma once
// One data table window's record: the columns of its last reading as text,
// the legend line, and where on the screen the samples lay.

#include "acquire/tabletext.h"

#include <QString>
#include <array>
#include <vector>

using DataColumn = std::vector<QString>;

struct DataRecord {
    bool Shown = false;
    // Columns used from index 1; a reading gives them TableTextLast + 1 entries.
    DataColumn Voltages;
    DataColumn Times;
    int32_t Count = 0;
    QString Legend;
    bool HasData = false;
    QString Channel; // "CH1" to "CH4"
    DataColumn Voltages2;
    bool IsPeak = false;
    int16_t Start = 0; // s16ScrStartPos and s16ScrEndPos at the reading
    int16_t End = 0;
};

inline constexpr int DataRecordCount = 18;
extern std::array<DataRecord, DataRecordCount> DataRecords;

// Takes the last table reading into record: HasData, Count, Legend, the
// columns, IsPeak, Start and End.
void TakeTableReading(DataRecord& record);

// The column indices of a record's rows: row 1 is index 2 Start + 1, the last
// 2 (End + 1), within the columns' bounds. A reading of no samples has no rows.
struct DataRows {
    int first = 0;
    int last = -1;
};
DataRows DataRowsOf(const DataRecord& record);

void ResetDataRecords();
