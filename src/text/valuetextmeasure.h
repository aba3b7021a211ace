#pragma once
// Measured numbers as texts: the number by "0.000" and a unit from the family's table.

#include <QString>

struct MeasureText {
    QString number;    // "1.500", or OverflowText when out of range
    int unitIndex = 0; // index into the family's unit table
    QString unit;      // the table's text at unitIndex
    QString text() const { return number + unit; }
};
MeasureText MeasureVoltParts(double volts);     // units "MV", "kV", "V", "mV", "uV"
MeasureText MeasureTimeParts(double seconds);   // units "ps", "ns", "us", "ms", "s"
MeasureText MeasureFreqParts(double hertz);     // units "GHz", "MHz", "KHz", "Hz", "mHz"
MeasureText MeasureRatioParts(double fraction); // v * 100 by "0.00", unit "%" (index 0)
QString MeasureVoltText(double volts);
QString MeasureTimeText(double seconds);
QString MeasureFreqText(double hertz);
QString MeasureRatioText(double fraction);
