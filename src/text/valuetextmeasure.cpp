// Measured numbers: a table of tests, first that holds, each giving the power of
// ten the number is shown at and the unit index; no test holding means out of range.

#include "text/valuetextmeasure.h"

#include "text/formatmask.h"

#include <span>

namespace {

enum class Test { AtLeast, Above };

struct MeasureRow {
    Test test;
    double bound;
    int power; // shown as value * 10^power
    int unitIndex;
};

struct MeasureFamily {
    std::span<const MeasureRow> rows;
    std::span<const char* const> units;
    int overflowIndex;
};

constexpr const char* VoltUnits[] = {"MV", "kV", "V", "mV", "uV"};
constexpr MeasureRow VoltRows[] = {
    {Test::AtLeast, 1e9, 0, -1}, {Test::AtLeast, 1e6, -6, 0},  {Test::AtLeast, 1000, -3, 1},
    {Test::AtLeast, 1, 0, 2},    {Test::AtLeast, 0.001, 3, 3}, {Test::AtLeast, 1e-06, 6, 4},
    {Test::Above, -0.001, 6, 4}, {Test::Above, -1, 3, 3},      {Test::Above, -1000, 0, 2},
    {Test::Above, -1e6, -3, 1},  {Test::Above, -1e9, -6, 0},
};

constexpr const char* TimeUnits[] = {"ps", "ns", "us", "ms", "s"};
constexpr MeasureRow TimeRows[] = {
    {Test::AtLeast, 1000, 0, -1}, {Test::AtLeast, 1, 0, 4},     {Test::AtLeast, 0.001, 3, 3},
    {Test::AtLeast, 1e-06, 6, 2}, {Test::AtLeast, 1e-09, 9, 1}, {Test::AtLeast, 1e-12, 12, 0},
    {Test::Above, -1e-09, 12, 0}, {Test::Above, -1e-06, 9, 1},  {Test::Above, -0.001, 6, 2},
    {Test::Above, -1, 3, 3},      {Test::Above, -1000, 0, 4},
};

constexpr const char* FreqUnits[] = {"GHz", "MHz", "KHz", "Hz", "mHz"};
constexpr MeasureRow FreqRows[] = {
    {Test::AtLeast, 1e12, 0, -1}, {Test::AtLeast, 1e9, -9, 0}, {Test::AtLeast, 1e6, -6, 1},
    {Test::AtLeast, 1000, -3, 2}, {Test::AtLeast, 1, 0, 3},    {Test::AtLeast, 0, 3, 4},
};

constexpr MeasureFamily Volts{VoltRows, VoltUnits, 2};
constexpr MeasureFamily Times{TimeRows, TimeUnits, 4};
constexpr MeasureFamily Freqs{FreqRows, FreqUnits, 3};

bool holds(const MeasureRow& row, double v)
{
    return row.test == Test::AtLeast ? v >= row.bound : v > row.bound;
}

MeasureText unitText(const MeasureFamily& family, const QString& number, int unitIndex)
{
    return {number, unitIndex, QLatin1String(family.units[static_cast<size_t>(unitIndex)])};
}

// A row with unit index -1 is an overflow test; a value passing no test overflows too.
MeasureText measureParts(double v, const MeasureFamily& family)
{
    for (const MeasureRow& row : family.rows) {
        if (!holds(row, v)) continue;
        if (row.unitIndex < 0) break;
        return unitText(family, FormatMaskScaled(v, row.power, QStringLiteral("0.000")), row.unitIndex);
    }
    return unitText(family, OverflowText, family.overflowIndex);
}

} // namespace

MeasureText MeasureVoltParts(double volts)
{
    return measureParts(volts, Volts);
}

MeasureText MeasureTimeParts(double seconds)
{
    return measureParts(seconds, Times);
}

MeasureText MeasureFreqParts(double hertz)
{
    return measureParts(hertz, Freqs);
}

MeasureText MeasureRatioParts(double fraction)
{
    // The percent mask moves the point by two decimal places, exactly.
    QString number = FormatMask(fraction, QStringLiteral("0.00%"));
    if (number.endsWith(u'%')) number.chop(1);
    return {number, 0, QStringLiteral("%")};
}

QString MeasureVoltText(double volts)
{
    return MeasureVoltParts(volts).text();
}

QString MeasureTimeText(double seconds)
{
    return MeasureTimeParts(seconds).text();
}

QString MeasureFreqText(double hertz)
{
    return MeasureFreqParts(hertz).text();
}

QString MeasureRatioText(double fraction)
{
    return MeasureRatioParts(fraction).text();
}
