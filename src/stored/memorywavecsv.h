#pragma once
// Save to CSV of a memory wave slot: times and volts of every stored sample,
// worked from the settings as loaded (never from the steppers).

#include "stored/memorywaveslot.h"

#include <QByteArray>
#include <QString>
#include <functional>

// A cell's number: mask "0.00E+00" from 1 up, "0.00E-00" below (as FormatMask
// gives them, made without its general machinery because a file has millions).
void AppendCsvNumber(QByteArray& out, double value);

// CSV needs CH1 or CH2 on; CH3 and CH4 are not looked at.
bool MemoryWaveCsvAllowed(const MemoryWaveSlot& slot);

// The whole text, CR LF line ends. `afterRow` runs after each row (row, rows).
using CsvRowHook = std::function<void(qint64 row, qint64 rows)>;
QByteArray MemoryWaveCsv(const MemoryWaveSlot& slot, const CsvRowHook& afterRow = {});

// Writes the text through a save file; the system's error text on failure, else empty.
QString WriteMemoryWaveCsv(const MemoryWaveSlot& slot, const QString& path, const CsvRowHook& afterRow = {});
