#include "frame/commstatus.h"

#include <QHash>

QString StatusEventText;
QString StatusErrorText;

namespace {

const QHash<int, QString>& eventTexts()
{
    static const QHash<int, QString> texts = {
        {comEvCTS, QStringLiteral("Change in CTS Detected")},
        {comEvDSR, QStringLiteral("Change in DSR Detected")},
        {comEvCD, QStringLiteral("Change in CD Detected")},
        {comEvRing, QStringLiteral("The Phone is Ringing")},
        {comEvEOF, QStringLiteral("End of File Detected")},
    };
    return texts;
}

const QHash<int, QString>& errorTexts()
{
    static const QHash<int, QString> texts = {
        {comEventBreak, QStringLiteral("Break Received")},
        {comEventCTSTO, QStringLiteral("CTS Timeout")},
        {comEventDSRTO, QStringLiteral("DSR Timeout")},
        {comEventFrame, QStringLiteral("Framing Error")},
        {comEventOverrun, QStringLiteral("Overrun Error")},
        {comEventCDTO, QStringLiteral("Carrier Detect Timeout")},
        {comEventRxOver, QStringLiteral("Receive Buffer Overflow")},
        {comEventRxParity, QStringLiteral("Parity Error")},
        {comEventTxFull, QStringLiteral("Transmit Buffer Full")},
        {comEventDCB, QStringLiteral("Error retrieving DCB")},
    };
    return texts;
}

} // namespace

QString CommStatusText(int code)
{
    if (code == comEvSend || code == comEvReceive) return QString();
    if (eventTexts().contains(code))
        StatusEventText = eventTexts().value(code);
    else
        StatusErrorText = errorTexts().value(code, QStringLiteral("Unknown error or event"));
    if (!StatusEventText.isEmpty()) return StatusPanelPrefix + StatusEventText;
    if (!StatusErrorText.isEmpty()) return StatusPanelPrefix + StatusErrorText;
    return QString();
}

// Qt reports no line-level faults (break, framing, parity); what it does report is
// placed on the classic code of the same side of the line.
int CommCodeOfSerialError(QSerialPort::SerialPortError error)
{
    switch (error) {
    case QSerialPort::NoError: return 0;
    case QSerialPort::ReadError: return comEventOverrun;
    case QSerialPort::WriteError: return comEventTxFull;
    default: return comEventUnknown;
    }
}

void ResetCommStatus()
{
    StatusEventText.clear();
    StatusErrorText.clear();
}
