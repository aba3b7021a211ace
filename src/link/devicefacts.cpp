#include "link/devicefacts.h"

QString FirmwareVersion;
QString ModelName;
uint8_t ModelIsSupported = 0;
uint8_t BandwidthClass = 0;
uint8_t SampleBase = 0;
bool HasLa = false;
QString MathDisplay;

void SetHasLa(bool value)
{
    if (HasLa == value) return;
    HasLa = value;
}

void ResetDeviceFacts()
{
    FirmwareVersion.clear();
    ModelName.clear();
    ModelIsSupported = 0;
    BandwidthClass = 0;
    SampleBase = 0;
    HasLa = false;
    MathDisplay.clear();
}
