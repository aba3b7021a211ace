#pragma once
// Serial port events as the status bar tells them. Events and errors keep the
// classic serial-control codes; the last texts of each kind stay set, so an
// event text, once seen, outranks every later error.

#include <QSerialPort>
#include <QString>

enum CommEventCode : int {
    comEvSend = 1,
    comEvReceive = 2,
    comEvCTS = 3,
    comEvDSR = 4,
    comEvCD = 5,
    comEvRing = 6,
    comEvEOF = 7,
    comEventBreak = 1001,
    comEventCTSTO = 1002,
    comEventDSRTO = 1003,
    comEventFrame = 1004,
    comEventOverrun = 1006,
    comEventCDTO = 1007,
    comEventRxOver = 1008,
    comEventRxParity = 1009,
    comEventTxFull = 1010,
    comEventDCB = 1011,
    comEventUnknown = 1999, // no classic counterpart
};

inline const QString StatusPanelPrefix = QStringLiteral("Status: ");

extern QString StatusEventText;
extern QString StatusErrorText;

// Records the text of a code other than send and receive. Returns the status panel's
// new text, or a null text when the panel stays as it is.
QString CommStatusText(int code);

// The classic code of a port error; 0 for no error.
int CommCodeOfSerialError(QSerialPort::SerialPortError error);

void ResetCommStatus();
