#include "link/linkcommands.h"

#include "link/linkstate.h"
#include "link/serialtransport.h"
#include "link/visatext.h"
#include "platform/platform.h"

namespace {
constexpr int CommandPauseMs = 100;
}

void WriteCmd(const QString& command)
{
    if (!LinkGateOpen()) return;
    if (TransportType == TransportRs232) {
        LinkBusy = true;
        Rs232Write(command);
        LinkBusy = false;
    } else {
        UsbWrite(command);
    }
    Sleep(CommandPauseMs);
}

QString AskCmd(const QString& query)
{
    if (!LinkGateOpen()) return {};
    SuppressReadError = true;
    if (TransportType != TransportRs232) {
        UsbWrite(query);
        return UsbRead();
    }
    BlockReceive = false;
    LinkBusy = true;
    Rs232Write(query);
    ReplyPending = true;
    const QString reply = Rs232Read();
    LinkBusy = false;
    return reply;
}
