#pragma once
// What the last connect learned about the instrument.

#include <QString>
#include <cstdint>

// The vendor and family the identity must begin with, upper case.
inline const QString IdnPattern = QStringLiteral("KORVA TECHNOLOGIES,KV7");

extern QString FirmwareVersion;  // last field of the identity, "SP" made "0"
extern QString ModelName;        // second field of the identity
extern uint8_t ModelIsSupported; // 1 once a model ending in "B" was seen; never cleared
extern uint8_t BandwidthClass;   // 0 to 5 from the model's bandwidth digits
extern uint8_t SampleBase;       // subtracted from every wave code; 0 for the supported model
extern bool HasLa;               // logic-analyser inputs; this family has none
extern QString MathDisplay;      // "ON" or "OFF", from ":MATH:DISPLAY?"

void SetHasLa(bool value);

void ResetDeviceFacts();
