#include "link/visatext.h"

#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/visalibrary.h"
#include "platform/platform.h"
#include "text/messages.h"

#include <algorithm>
#include <array>

namespace {
constexpr ViUInt32 TextReadSize = 256;
}

void UsbWrite(const QString& command)
{
    if (!LinkGateOpen()) return;
    const QByteArray line = command.toLatin1() + '\n';
    ViUInt32 written = 0;
    const auto* bytes = reinterpret_cast<const ViByte*>(line.constData());
    if (Visa().write(VisaSession, bytes, ViUInt32(line.size()), &written) == VI_SUCCESS) return;
    MsgBox(MsgCantConnect, vbOKOnly, MsgSend);
    if (Connected) LinkLost();
}

QString UsbRead()
{
    if (!LinkGateOpen()) return {};
    std::array<ViByte, TextReadSize> buffer{};
    ViUInt32 count = 0;
    Visa().read(VisaSession, buffer.data(), TextReadSize, &count);
    const auto* text = reinterpret_cast<const char*>(buffer.data());
    return QString::fromLatin1(text, qsizetype(std::min(count, TextReadSize)));
}
