#include "link/visaopen.h"

#include "link/linkstate.h"
#include "link/resourcechooser.h"
#include "link/visalibrary.h"
#include "platform/platform.h"
#include "text/messages.h"

#include <cstring>

namespace {

constexpr ViUInt32 SessionTimeoutMs = 50000;

QString descriptionText(const char* description)
{
    return QString::fromLatin1(description, qsizetype(strnlen(description, VI_FIND_BUFLEN)));
}

// Fills ResourceList the way the program always did: entry 0 from the find,
// then one viFindNext per resource counted, so the last entry stays blank.
// Returns the count, or -1 when the list would overflow.
qint64 findResources()
{
    char description[VI_FIND_BUFLEN] = {};
    ViFindList list = VI_NULL;
    ViUInt32 count = 0;
    Visa().findRsrc(VisaDefaultRM, InstrumentFindPattern, &list, &count, description);
    ResourceList[0] = descriptionText(description);
    for (qint64 i = 1; i <= qint64(count); ++i) {
        if (i >= ResourceListSize) return -1;
        std::memset(description, 0, sizeof description);
        Visa().findNext(list, description);
        ResourceList[size_t(i)] = descriptionText(description);
    }
    return count;
}

void cantConnect()
{
    MsgBox(MsgCantConnect, vbOKOnly, MsgInit);
    DevicePresent = false;
}

QStringList listedRows(qint64 count)
{
    QStringList rows;
    for (qint64 i = 0; i <= count; ++i)
        rows.append(ResourceList[size_t(i)]);
    return rows;
}

// Which resource to open; false when there is none to open.
bool pickResource(qint64 count)
{
    if (count > 1) {
        if (ChooseResource(listedRows(count))) return true;
        DevicePresent = false;
        return false;
    }
    if (count == 1) {
        DevicePresent = true;
        if (!ResourceChosen) {
            ResourceChosen = true;
            ResourceName = ResourceList[0];
        }
        return true;
    }
    cantConnect();
    return false;
}

// Set, then read back; the values read back are not looked at.
void setAttribute(ViAttr attribute, ViAttrState value)
{
    ViUInt64 readBack = 0;
    Visa().setAttribute(VisaSession, attribute, value);
    Visa().getAttribute(VisaSession, attribute, &readBack);
}

} // namespace

void OpenVisaRM()
{
    Visa().openDefaultRM(&VisaDefaultRM);
}

void CloseVisaRM()
{
    Visa().close(VisaDefaultRM);
}

void UsbOpen()
{
    const qint64 count = findResources();
    if (count < 0) return cantConnect();
    if (!pickResource(count)) return;
    const QByteArray name = ResourceName.toLatin1();
    if (Visa().open(VisaDefaultRM, name.constData(), VI_NO_LOCK, 0, &VisaSession) != VI_SUCCESS)
        return cantConnect();
    setAttribute(VI_ATTR_TMO_VALUE, SessionTimeoutMs);
    setAttribute(VI_ATTR_TCPIP_KEEPALIVE, VI_TRUE);
}
