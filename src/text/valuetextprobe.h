#pragma once
// The Volt/Div text of a probe's tip turned into the scale at the input.

#include <QString>

// For a probe of "2X" to "1000X": "200mV" with "10X" gives "20.0mV". "1X" returns
// the text unchanged; a text that is not a ladder step times the probe ratio
// gives "10.0V". Other probe texts ("0.1X", unknown ones) leave the text unchanged.
QString ProbeScaleToOneX(const QString& voltDiv, const QString& probe);
