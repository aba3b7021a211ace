#pragma once
// The firmware field of the instrument's identity and whether it is new enough.

#include <QString>

// The oldest firmware the program works with.
inline const QString OldestFirmware = QStringLiteral("00.03.03.00.00");

// Everything behind the last comma of the identity, each "SP" made "0". An
// empty identity gives OldestFirmware, which FirmwareVersion takes as well.
QString ExtractFirmwareVersion(const QString& identity);
// A plain character comparison: the version passes when it doesn't sort below
// OldestFirmware, or doesn't sort below its first eight characters "00.03.03"
// (so "00.03.03" alone passes too).
bool IsFirmwareSupported(const QString& version);
