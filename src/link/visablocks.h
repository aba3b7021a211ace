#pragma once
// The VISA transport's binary reads: screen codes, the parameter block and the
// screen picture. Each hands back bytes; the readings decode them. None does
// anything unless the link's gate is open (Connected or Connecting).

#include <QByteArray>
#include <cstdint>
#include <functional>
#include <span>

// The screen picture of ":DISPLAY:DATA?": 320 by 240 at 8 bits per pixel, its
// header and colour table.
inline constexpr int ScreenPictureSize = 77878;

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
