#pragma once
// The link state: which transport is in use, whether the instrument is there,
// and the receive side of a serial reply. Global to the program; one thread
// reads and writes it (timers and serial events run inside the link's waits).

#include "visa/visa.h"

#include <QString>
#include <array>
#include <cstdint>

enum : int { TransportVisa = 0, TransportRs232 = 2 };

inline constexpr int ReplyBufferLast = 65536;   // last index of ReplyBuffer
inline constexpr int ScreenBufferLast = 100000; // last index of ScreenBuffer
inline constexpr int ResourceListSize = 11;

extern int TransportType;  // 2 RS232, 0 VISA; setting "ScopeIOType"
extern bool Connected;     // the instrument was identified and the link is up
extern bool Connecting;    // ConnectDevice runs: the transport routines work meanwhile
extern bool DevicePresent; // the last open of the transport succeeded
extern bool LinkBusy;      // a serial write or a modal transfer is under way
extern bool ReplyPending;  // a serial reply is awaited
extern QString ReplyText;  // the serial reply gathered so far
extern int ReplyTicks;     // tenths of a second since serial bytes last came
extern int LinkTicks;      // counted beside ReplyTicks; nothing reads it
extern int ReplyByteCount; // serial bytes received for this reply
extern std::array<uint8_t, ReplyBufferLast + 1> ReplyBuffer;
extern int ReplyBufferUsed;    // bytes held in ReplyBuffer
extern bool ReplyChunkSeen;    // false before the first chunk of a reply
extern bool BlockReceive;      // serial receive works in block mode
extern double BlockLength;     // length of a serial block, from its header
extern bool SuppressReadError; // a command went out since the last good screen read
extern ViSession VisaDefaultRM;
extern ViSession VisaSession;
extern QString ResourceName; // the VISA resource in use
extern bool ResourceChosen;  // ResourceName was chosen and is not replaced by the first one found
extern std::array<QString, ResourceListSize> ResourceList;
extern int ComPort;      // serial port number; setting "COM_Port"
extern QString BaudRate; // setting "BaudRate", such as "9600"
// A serial device path that, when not empty, is opened instead of the port
// numbered ComPort (a USB adapter, a pseudo-terminal). Not kept in the settings.
extern QString SerialDevice;
extern std::array<uint8_t, ScreenBufferLast + 1> ScreenBuffer; // receive buffer of UsbReadBlock

// The gate of every transport routine but the two opens: nothing is sent or
// read unless the instrument is connected or a connect is running.
inline bool LinkGateOpen()
{
    return Connected || Connecting;
}

// Everything of the link, the instrument's facts included, back to its start
// values; an open serial port is closed.
void ResetLinkState();
