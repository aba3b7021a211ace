#pragma once
// The columns of a data table as the reading leaves them (time, value, and the
// second peak half), the table's first line, and the number form of their cells.

#include <QString>
#include <array>

inline constexpr int TableTextLast = 10240;
using TableTextColumn = std::array<QString, TableTextLast + 1>;

extern TableTextColumn DataTimeText;
extern TableTextColumn DataValueText;
extern TableTextColumn DataValueText2;
extern QString DataHeaderText;

// A cell's text: mask "0.00E+00" for a value of 1 or more, "0.00E-00" below, so
// the exponent of a small value carries its minus sign and that of a large one its plus.
QString FormatCode(float value);

void ResetTableTexts();
