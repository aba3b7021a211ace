#pragma once
// Number text by format mask, and the plain decimal text that commands carry.
//
// Mask grammar: "0" a digit always shown, "#" a digit shown only when
// significant, "." the decimal point, "%" multiplies by 100 and is shown,
// "E+"/"E-" (or "e+"/"e-") followed by "0"s an exponent ("+" always signed,
// "-" signed only when negative). Any other character is written as it
// stands: before the number when it comes before the first placeholder, after
// it otherwise ("#0.00div", "00.0%").
//
// Rounding is half away from zero on the shortest decimal text of the value,
// so 2.675 with "0.00" gives "2.68". A value that rounds to zero never shows a
// minus sign. An infinite or undefined value gives OverflowText.

#include <QString>

// What a mask gives for a value that is no number (a division by a zero scale).
inline const QString OverflowText = QStringLiteral("???.?");

QString FormatMask(double value, const QString& mask);
// A single-precision value, rounded on its own shortest text ("0.333", not "0.33300000429").
QString FormatMaskSingle(float value, const QString& mask);
// FormatMask of value * 10^power, with the power applied to the decimal digits:
// a unit change (seconds to milliseconds) never adds binary noise before rounding.
QString FormatMaskScaled(double value, int power, const QString& mask);

// The plain decimal text of a value, as numbers are written into commands: the
// shortest digits that read back to the same double (so 1/3 keeps its sixteen
// threes and 0.1 + 0.2 is "0.30000000000000004"), trailing zeros dropped, never
// an exponent and never a locale's separator: 1e-08 is "0.00000001", 2e20 is
// "200000000000000000000", -0.0 is "0". A value that is no number gives "0", so
// a command never carries an unreadable argument.
QString GeneralFormat(double value);
// The same for a single-precision value, at most 7 significant digits.
QString GeneralFormatSingle(float value);
