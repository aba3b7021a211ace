#pragma once
// One exchange on the serial port: the command out, the reply awaited.

#include <QString>

// Sends the command and a line feed, then waits as long as the characters take
// to leave at BaudRate (at least 3 ms each). A failure shows its description
// and, when connected, ends in LinkLost.
void Rs232Write(const QString& command);
// Lets the event loop turn until the reply is complete or four seconds passed
// with no bytes (counted by TimeOutTimerTick). Silence gives "".
QString Rs232Read();
