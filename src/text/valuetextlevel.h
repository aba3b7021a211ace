#pragma once
// A trigger level in divisions turned back into volts, asking the instrument
// for the source's scale and offset through a query seam.

#include <QString>
#include <functional>

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
