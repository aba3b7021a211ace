#pragma once
// Formatters of a text holding a plain number (as the instrument sends it),
// three to five significant digits with the unit prefix that suits the value.

#include <QString>

QString TimeText3(const QString& text); // "100ns", "10.0ms", "1.00s"; near zero "0.00s"
QString TimeText4(const QString& text); // "100.0ns", "10.00ms", "1.000s"; near zero "0.000s"
QString TimeText5(const QString& text); // "100.00ns" ...; near zero "0.0000s"
// "2.00mV", "500mV", "1.00kV", "2.00MV"; "??.?V" from 9999900 up and from -999990
// down (no negative megavolts); near zero "0.00uV".
QString VoltText3(const QString& text);
// "1.000kHz", "100.0MHz", "1.000mHz"; "??.???" from 999999990000 up, below 0.00099999999 and for negatives.
QString FreqText(const QString& text);
// "12.3dB", "-1.23dB"; "****dB" from 9999.9 up, "-****dB" from -9999.9 down; near zero "0.00dB".
QString DbText(const QString& text);
