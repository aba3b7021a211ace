#pragma once
// The value lists the editor offers, in the order they are offered.

#include <QString>
#include <QStringList>
#include <array>

// The instrument's 1-2-5 ladder of input scales in microvolts, 2 mV to 10 V.
inline constexpr std::array<int, 12> CoarseVoltLadder = {2000,   5000,   10000,   20000,   50000,   100000,
                                                         200000, 500000, 1000000, 2000000, 5000000, 10000000};

// The bandwidth class of a model from the digits of its bandwidth: 2, 4, 6, 10 and
// 20 give 0 to 4, anything else 5.
int BandwidthClassOf(int modelDigits);

// Time/Div steps for the reply to ":TIMEBASE:FORMAT?" (the caller asks it): from
// the class's lowest step up to "20.00s", and on to "50.00s" for "X-Y" and "ROLL".
QStringList SetCtrlDialogTimeDivNum(const QString& formatReply, int bandwidthClass);
// The same for the format the instrument answers now (asked through AskInstrument).
QStringList SetCtrlDialogTimeDivNum(int bandwidthClass);
// Volt/Div steps for a probe text "1X", "10X", "100X" or "1000X"; empty for others.
QStringList SetCtrlDialogVoltDivNum(const QString& probe);
// "6.00div" down to "-6.00div" by 0.04: 301 steps.
QStringList SetCtrlDialogTrigLevelNum();
// "1.00div" down to "0.10div" by 0.01: 91 steps.
QStringList SetCtrlDialogTrigSensitivityNum();
// "0" to size - 1 for the reply to ":WAVEFORM:SYSMEMSIZE?" (the caller asks it).
// Every real memory depth of the family (a whole stored file is about 2 M
// samples) lies below MemOffsetLimit; only a garbled reply is cut there, so it
// cannot exhaust memory.
QStringList SetCtrlDialogMemOffsetNum(const QString& sizeReply);
inline constexpr int MemOffsetLimit = 1 << 22;
// The same for the size the instrument answers now (asked through AskInstrument).
QStringList SetCtrlDialogMemOffsetNum();
