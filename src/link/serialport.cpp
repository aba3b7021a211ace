#include "link/serialport.h"

#include "link/linkstate.h"
#include "link/serialreceive.h"
#include "platform/platform.h"
#include "text/messages.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSerialPort>

namespace {

QPointer<QSerialPort> port;

// The rate of BaudRate, or 0 when it is not a positive whole number.
int baudRateValue()
{
    bool ok = false;
    const int rate = BaudRate.trimmed().toInt(&ok);
    return ok && rate > 0 ? rate : 0;
}

// The error of a failed open, or an empty text when the port is open.
QString openPort(QSerialPort& serial)
{
    const int rate = baudRateValue();
    if (rate == 0) return QStringLiteral("Invalid baud rate \"%1\"").arg(BaudRate.trimmed());
    serial.setPortName(SerialPortName());
    serial.setBaudRate(rate);
    serial.setParity(QSerialPort::NoParity);
    serial.setDataBits(QSerialPort::Data8);
    serial.setStopBits(QSerialPort::OneStop);
    serial.setFlowControl(QSerialPort::NoFlowControl);
    return serial.open(QIODevice::ReadWrite) ? QString() : serial.errorString();
}

} // namespace

QSerialPort& MSComm1()
{
    if (!port) {
        // Owned by the application, so it goes before the event loop does.
        port = new QSerialPort(QCoreApplication::instance());
        QObject::connect(port, &QSerialPort::readyRead, port, [] { Rs232Receive(port->readAll()); });
    }
    return *port;
}

void CloseSerialPort()
{
    if (port && port->isOpen()) port->close();
}

QString SerialPortName()
{
    if (!SerialDevice.isEmpty()) return SerialDevice;
    return QStringLiteral("/dev/ttyS%1").arg(ComPort - 1);
}

void Rs232Open()
{
    QSerialPort& serial = MSComm1();
    if (serial.isOpen()) serial.close();
    const QString error = openPort(serial);
    if (error.isEmpty()) return;
    MsgBox(error, vbExclamation, MsgRs232Init);
    DevicePresent = false;
}
