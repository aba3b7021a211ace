#pragma once
// The VISA transport's text exchange: a command out, one read of a reply back.
// Neither does anything unless the link's gate is open (Connected or Connecting).

#include <QString>

// Sends the command and a line feed; a failure shows a box and, when
// connected, ends in LinkLost.
void UsbWrite(const QString& command);
// One read of at most 256 bytes, as Latin-1 text; the rest of a longer reply
// is left for the next read. Read failures are not reported.
QString UsbRead();
