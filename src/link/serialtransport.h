#pragma once
// The RS232 transport on a QSerialPort. Text only: binary reads need VISA.
// Received bytes reach Rs232RecvLine (or Rs232RecvBlock in block mode) from the
// port's readyRead, which runs while Rs232Read lets the event loop turn.
// The port (serialport.h), the exchange (serialwrite.h) and the receive event
// (serialreceive.h) each live in a source of their own.

#include "link/serialport.h"
#include "link/serialreceive.h"
#include "link/serialwrite.h"
