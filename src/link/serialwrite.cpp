#include "link/serialwrite.h"

#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/serialport.h"
#include "platform/platform.h"
#include "text/messages.h"
#include "text/valuetext.h"

#include <QSerialPort>
#include <QThread>
#include <algorithm>

namespace {

constexpr int SilenceTicks = 40;
constexpr double MinimumCharacterMs = 3;

// The error of a failed send, or an empty text.
QString send(QSerialPort& serial, const QByteArray& bytes)
{
    if (!serial.isOpen()) return QStringLiteral("Device not open");
    serial.clearError();
    const qint64 written = serial.write(bytes);
    serial.flush();
    const bool failed = written != bytes.size() || serial.error() != QSerialPort::NoError;
    return failed ? serial.errorString() : QString();
}

// How long the characters take to leave the port; 30000 / baud is generous
// for ten bits a character, and slow instruments need the slack.
int transmitMs(qsizetype characters)
{
    const double rate = Val(BaudRate);
    const double perCharacter = rate > 0 ? 30000 / rate : MinimumCharacterMs;
    return int(std::max(perCharacter, MinimumCharacterMs) * double(characters));
}

} // namespace

void Rs232Write(const QString& command)
{
    if (!LinkGateOpen()) return;
    ReplyText.clear();
    ReplyChunkSeen = false;
    const QString error = send(MSComm1(), command.toLatin1() + '\n');
    if (!error.isEmpty()) {
        MsgBox(error, vbOKOnly, MsgRs232Send);
        if (Connected) LinkLost();
        return;
    }
    Sleep(transmitMs(command.size() + 1));
}

QString Rs232Read()
{
    if (!LinkGateOpen()) return {};
    ReplyTicks = 0;
    while (ReplyPending && ReplyTicks < SilenceTicks) {
        DoEvents();
        // A pause between turns of the event loop keeps a silent instrument's
        // four seconds from costing a whole processor; a reply is late by at most this.
        if (ReplyPending) QThread::usleep(500);
    }
    return ReplyTicks >= SilenceTicks ? QString() : ReplyText;
}
