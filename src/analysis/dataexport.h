#pragma once
// The text file of a data table: the program's title, the legend of the
// reading, a header line and one tab-separated line per row, CR LF line ends.

#include "analysis/datarecord.h"

#include <QString>

QString DataExportText(const DataRecord& record);
