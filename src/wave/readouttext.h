#pragma once
// The number texts of the cursor readouts. They are the wave view's own and
// differ from the value texts of the controller: fixed "0.0" and "0.00" masks.

#include <QString>

// "150.0mV" below 1, else "2.0V".
QString ConvertVoltToStr(double value);
// "1.23s", "4.50ms", "10.00us", "2.00ns", "500.00ps"; exactly 0 gives "0.000s";
// anything else (negative, below 1 ps, no number) an empty text. The value in the
// unit of the text goes to *scaled when asked for.
QString ConvertTimeToStr(double value, double* scaled = nullptr);
// "1.00GHz", "2.50MHz", "813.01KHz", "12.00Hz".
QString ConvertFreqToStr(double value);
// Seconds from such a time text: the letter before the first "s" ("n", "u", "m",
// "p" or a digit) gives the unit; any other letter there gives 0. A text without
// "s" is read as a plain number. Callers replace "," by "." first.
double GetTimeVlu(const QString& text);
