#pragma once
// The VISA transport: finding and opening the instrument's resource, text
// writes and reads, and the three binary reads (screen codes, the parameter
// block, the screen picture). Every routine but UsbOpen does nothing unless
// the link's gate is open (Connected or Connecting).

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <functional>
#include <span>

// The find pattern of UsbOpen: every USB, TCPIP or GPIB instrument resource.
inline constexpr char InstrumentFindPattern[] = "(USB|TCPIP|GPIB)?*INSTR";
// The screen picture of ":DISPLAY:DATA?": 320 by 240 at 8 bits per pixel, its
// header and colour table.
inline constexpr int ScreenPictureSize = 77878;

// The default resource manager into VisaDefaultRM, and its close (which closes
// every session opened from it).
void OpenVisaRM();
void CloseVisaRM();

// Finds the resources, lets the user choose when there are several, opens
// ResourceName into VisaSession. Sets DevicePresent false, with a box unless the
// user cancelled, when nothing could be opened.
void UsbOpen();
// Sends the command and a line feed; a failure shows a box and, when
// connected, ends in LinkLost.
void UsbWrite(const QString& command);
// One read of at most 256 bytes, as Latin-1 text; the rest of a longer reply
// is left for the next read. Read failures are not reported.
QString UsbRead();

// One block of at most 6400 bytes into `into`, sample i at index i. The
// length digits of the header are not parsed: the samples are the bytes
// between the header and the final line feed. sampleCount gets their number,
// never below 0. Returns false when a sample would fall outside `into` (or
// before the buffer, for a header that is not one): that is the reading's error
// path, and the samples stored before it stay.
bool UsbReadScreenBytes(std::span<int32_t> into, int& sampleCount);
// The bytes of the ":WAVEFORM:PARAMETER?" block after its "#n" header.
inline constexpr int ParameterBlockSize = 80;
// Reads the parameter block into `block` (ParameterBlockSize bytes, undecoded).
// A failed read shows a box, ends in LinkLost when connected and returns false.
bool UsbReadParameterBytes(QByteArray& block);
// One read of a screen picture. When a whole picture came, its 77878 bytes go
// to bytes and count becomes 77878; otherwise both are left as they were. A
// failed read is reported only when no query was sent since the last good one.
void UsbReadBlock(int& count, QByteArray& bytes);

// Asks for the screen picture (VISA only). When a read brings no whole picture it
// asks again while askAgain says so (the virtual panel: while both its run flags
// are set); without askAgain it asks once.
void ReadDisplayData(QByteArray& bytes, const std::function<bool()>& askAgain = {});
