#pragma once
// What the options dialog hands over when OK is pressed, and the order in which
// it takes effect.

#include <QString>

struct OptionsChoice {
    bool startupCheckHardware = false;
    bool startupLoadSheet = false;
    bool startupLoadCtrl = false;
    bool autoRefresh = false;
    QString intervalText; // seconds
    bool rs232 = false;
    QString portText; // "COM3"
    QString baudText;
    QString gpibText;
    QString resource; // the full resource name; empty when no device is shown
};

// The instrument hears of a new baud rate first, while the old rate still holds;
// then a live link is closed whatever changed, and the settings take the choice.
void ApplyOptions(const OptionsChoice& choice);

// The number of a port text: "COM3" gives 3, a text without digits 0.
int PortNumber(const QString& portText);

// A resource name as the device list shows it: the fields between the interface
// and the "INSTR" suffix, "USB0::0x1234::0x5678::SN1::INSTR" showing "0x1234 0x5678 SN1".
QString ShortResourceText(const QString& resource);

// The device list's rows: the full names of the USB instruments the VISA layer finds.
QStringList FindUsbResources();
