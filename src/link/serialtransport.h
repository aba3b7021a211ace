#pragma once
// The RS232 transport on a QSerialPort. Text only: binary reads need VISA.
// Received bytes reach Rs232RecvLine (or Rs232RecvBlock in block mode) from the
// port's readyRead, which runs while Rs232Read lets the event loop turn.
//
// The port opened is SerialDevice when that is set, else the port numbered
// ComPort: COMn is /dev/ttyS(n-1), as the first serial port is COM1.

#include <QByteArray>
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
// Sends the command and a line feed, then waits as long as the characters take
// to leave at BaudRate (at least 3 ms each). A failure shows its description
// and, when connected, ends in LinkLost.
void Rs232Write(const QString& command);
// Lets the event loop turn until the reply is complete or four seconds passed
// with no bytes (counted by TimeOutTimerTick). Silence gives "".
QString Rs232Read();

// The receive event: the chunk goes to the line or the block receiver.
void Rs232Receive(const QByteArray& chunk);
// Text receive: bytes are kept in ReplyBuffer and ReplyText; a line feed ends
// the reply and what follows it is dropped from ReplyText.
void Rs232RecvLine(const QByteArray& chunk);
// Block receive: the first four bytes of a reply are the block's length,
// little-endian; the reply ends when that many bytes followed them.
void Rs232RecvBlock(const QByteArray& chunk);
