#pragma once
// Value texts by a fixed mask: percents, trigger levels in divisions and the
// exact time texts the editor sends.

#include <QString>

// A fraction as percent: "50.0%" from 0.1 up, "5.00%" below.
QString PercentText(const QString& text);
// The same for a text already in percent ("50" gives "50.0%"), via single precision.
QString PercentTextOf100(const QString& text);

// A trigger level in divisions: level / scale by "#0.00" followed by "div". A
// scale of "0" (the AC line) gives OverflowText + "div".
QString LevelDivText(const QString& level, const QString& scale);

// The time text the editor puts on the wire: "0.0####..." in ns, us, ms or s, the
// smallest unit whose bound the value does not pass ("100.0ns", "1.5ms").
QString ExactTimeText(double seconds);
QString ExactTimeWireText(double seconds);
