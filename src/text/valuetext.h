#pragma once
// Value texts: the one place where the instrument's text becomes a number and a
// number becomes the text that the tree, the tables and the commands show.
// Everything here is a pure function of its arguments, except that the parsers
// set ValueValid and LevelToVolts asks the instrument through its query seam.

#include "text/formatmask.h"

#include <QString>
#include <functional>

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

// Formatters of a text holding a plain number (as the instrument sends it),
// three to five significant digits with the unit prefix that suits the value.
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
// A fraction as percent: "50.0%" from 0.1 up, "5.00%" below.
QString PercentText(const QString& text);
// The same for a text already in percent ("50" gives "50.0%"), via single precision.
QString PercentTextOf100(const QString& text);

// A trigger level in divisions: level / scale by "#0.00" followed by "div". A
// scale of "0" (the AC line) gives OverflowText + "div".
QString LevelDivText(const QString& level, const QString& scale);

// Asks the instrument one query and returns its reply; the default seam answers nothing.
using InstrumentQuery = std::function<QString(const QString& query)>;
// Installs the seam LevelToVolts asks through and returns the previous one.
InstrumentQuery SetLevelQuery(InstrumentQuery query);
// Asks through the installed seam (the step lists ask the time base format and the memory size).
QString AskInstrument(const QString& query);
// The inverse of LevelDivText for a level command: Val(divText) * scale - offset as
// plain text. "CHANNEL1" to "CHANNEL4" ask the channel's scale, then its offset;
// "EXT" is scale 0.2, "EXT5" scale 1, offset 0; "ACLINE" and any other source
// (the logic inputs have no scale) give scale and offset 0.
QString LevelToVolts(const QString& divText, const QString& source);

// Measured numbers: the number by "0.000" and a unit from the family's table.
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

// The time text the editor puts on the wire: "0.0####..." in ns, us, ms or s, the
// smallest unit whose bound the value does not pass ("100.0ns", "1.5ms").
QString ExactTimeText(double seconds);
QString ExactTimeWireText(double seconds);

// The Volt/Div text at the probe tip turned into the scale at the input, for a
// probe of "2X" to "1000X": "200mV" with "10X" gives "20.0mV". "1X" returns the
// text unchanged; a text that is not a ladder step times the probe ratio gives
// "10.0V". Other probe texts ("0.1X", unknown ones) leave the text unchanged.
QString ProbeScaleToOneX(const QString& voltDiv, const QString& probe);
