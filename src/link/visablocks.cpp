#include "link/visablocks.h"

#include "link/linkcommands.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/visalibrary.h"
#include "link/vocabulary.h"
#include "platform/platform.h"
#include "text/messages.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr ViUInt32 ScreenReadSize = 6400;
constexpr ViUInt32 PictureReadSize = ScreenBufferLast;
// The count a picture read starts from, in case the library leaves it alone.
constexpr ViUInt32 PicturePresetCount = 77889;
// A picture read of at least this many bytes holds a picture and its line feed.
constexpr ViUInt32 PictureReplyMinimum = ScreenPictureSize + 1;

// The digit of a "#n" header, as the program always took it: any byte less 48.
int headerDigit(const ViByte* bytes, ViUInt32 count)
{
    return count >= 2 ? int(bytes[1]) - '0' : 0;
}

bool readSucceeded(ViStatus status)
{
    return status == VI_SUCCESS || status == VI_SUCCESS_MAX_CNT;
}

void reportReadFailure()
{
    MsgBox(MsgCantRead, vbOKOnly, MsgRead);
}

} // namespace

bool UsbReadScreenBytes(std::span<int32_t> into, int& sampleCount)
{
    sampleCount = 0;
    if (!LinkGateOpen()) return true;
    std::array<ViByte, ScreenReadSize> buffer{};
    ViUInt32 count = 0;
    Visa().read(VisaSession, buffer.data(), ScreenReadSize, &count);
    count = std::min(count, ScreenReadSize);
    const int digits = headerDigit(buffer.data(), count);
    const int samples = int(count) - digits - 3;
    sampleCount = std::max(samples, 0);
    const int last = int(into.size()) - 1;
    for (int i = 1; i <= samples; ++i) {
        const int from = i + digits + 1;
        if (i > last || from < 0) return false;
        into[size_t(i)] = buffer[size_t(from)];
    }
    return true;
}

bool UsbReadParameterBytes(QByteArray& block)
{
    if (!LinkGateOpen()) return false;
    std::array<ViByte, 2> head{};
    ViUInt32 count = 0;
    Visa().read(VisaSession, head.data(), ViUInt32(head.size()), &count);
    const int digits = headerDigit(head.data(), count);
    if (digits < 0) return false; // no header: nothing to decode
    std::vector<ViByte> body(size_t(digits) + ParameterBlockSize + 1);
    const ViStatus status = Visa().read(VisaSession, body.data(), ViUInt32(body.size()), &count);
    if (!readSucceeded(status)) {
        reportReadFailure();
        if (Connected) LinkLost();
        return false;
    }
    block = QByteArray(reinterpret_cast<const char*>(body.data()) + digits, qsizetype(ParameterBlockSize));
    return true;
}

void UsbReadBlock(int& count, QByteArray& bytes)
{
    if (!LinkGateOpen()) return;
    ViUInt32 received = PicturePresetCount;
    const ViStatus status = Visa().read(VisaSession, ScreenBuffer.data(), PictureReadSize, &received);
    if (status != VI_SUCCESS && !SuppressReadError) {
        reportReadFailure();
        if (Connected) return LinkLost();
    }
    if (received < PictureReplyMinimum || received >= PictureReadSize) return;
    const auto* first = reinterpret_cast<const char*>(ScreenBuffer.data()) + (received - PictureReplyMinimum);
    bytes = QByteArray(first, ScreenPictureSize);
    SuppressReadError = false;
    count = ScreenPictureSize;
}

void ReadDisplayData(QByteArray& bytes, const std::function<bool()>& askAgain)
{
    if (!LinkGateOpen() || TransportType != TransportVisa) return;
    const QString ask = Vocab::Whole::DisplayData;
    WriteCmd(ask);
    int count = 0;
    do {
        UsbReadBlock(count, bytes);
        if (count == ScreenPictureSize) break;
        WriteCmd(ask);
        DoEvents();
        // A lost link answers nothing more: asking again would never end.
    } while (LinkGateOpen() && askAgain && askAgain());
}
