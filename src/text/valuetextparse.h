#pragma once
// The instrument's texts read as numbers: the classic leading-number reading and
// the parsers of unit texts. Every parser sets ValueValid.

#include <QString>

// Set by every parser: true after a good parse, false otherwise. Read it right after the call.
extern bool ValueValid;

// The instrument's mark of a failed measurement. It stays text: no parser takes it for a number.
inline const QString NoMeasureText = QStringLiteral("9.9E+37");

// The characters before the first line feed; a text without one comes back whole.
QString StripAtLineFeed(const QString& text);

// The classic leading-number reading: blanks and tabs anywhere are skipped, then
// an optional sign, digits, a point, digits and an exponent ("E" or "D"); the rest
// is ignored. No number gives 0, and so does a number beyond the double range
// (then *inRange is false). Locale-independent.
double Val(const QString& text, bool* inRange = nullptr);

// Parsers of unit texts ("10.00ns", "2.00mV", "1kV", "50.0%", "1.000kHz"). A text
// holding ">", "*" or "<" (a bound or a failed measure), an unknown prefix before
// the unit letter ("KHz"), NoMeasureText or a number beyond the double range gives
// 0 with ValueValid false. A text without the unit letter is read whole.
double ParsePercentText(const QString& text);     // "%", result / 100
double ParseFreqText(const QString& text);        // "H" with G M k m
double ParseVoltText(const QString& text);        // "V" with p n u m k
double ParseMeasureVoltText(const QString& text); // "V" with u m k M
double ParseTimeText(const QString& text);        // "s" with p n u m
// A time text as number and exponent: "10.00ns" gives "10.000E-9", "2s" gives
// "2.000"; empty when the text is invalid as for ParseTimeText.
QString TimeTextToExponent(const QString& text);
