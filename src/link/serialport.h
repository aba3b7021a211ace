#pragma once
// The program's one serial port and its opening.
//
// The port opened is SerialDevice when that is set, else the port numbered
// ComPort: COMn is /dev/ttyS(n-1), as the first serial port is COM1.

#include <QString>

class QSerialPort;

// The program's one serial port, made on first use.
QSerialPort& MSComm1();
// Closes the port if it is open.
void CloseSerialPort();
// The device Rs232Open opens.
QString SerialPortName();

// Opens the port at BaudRate, no parity, 8 data bits, 1 stop bit, no
// handshake. A failure shows its description and clears DevicePresent.
void Rs232Open();
