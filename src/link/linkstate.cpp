#include "link/linkstate.h"

#include "link/devicefacts.h"
#include "link/linklamp.h"
#include "link/serialtransport.h"

int TransportType = TransportVisa;
bool Connected = false;
bool Connecting = false;
bool DevicePresent = false;
bool LinkBusy = false;
bool ReplyPending = false;
QString ReplyText;
int ReplyTicks = 0;
int LinkTicks = 0;
int ReplyByteCount = 0;
std::array<uint8_t, ReplyBufferLast + 1> ReplyBuffer{};
int ReplyBufferUsed = 0;
bool ReplyChunkSeen = false;
bool BlockReceive = false;
double BlockLength = 0;
bool SuppressReadError = false;
ViSession VisaDefaultRM = VI_NULL;
ViSession VisaSession = VI_NULL;
QString ResourceName;
bool ResourceChosen = false;
std::array<QString, ResourceListSize> ResourceList;
int ComPort = 1;
QString BaudRate = QStringLiteral("9600");
QString SerialDevice;
std::array<uint8_t, ScreenBufferLast + 1> ScreenBuffer{};

namespace {

void resetReceive()
{
    ReplyPending = false;
    ReplyText.clear();
    ReplyTicks = 0;
    LinkTicks = 0;
    ReplyByteCount = 0;
    ReplyBuffer.fill(0);
    ReplyBufferUsed = 0;
    ReplyChunkSeen = false;
    BlockReceive = false;
    BlockLength = 0;
}

void resetVisa()
{
    SuppressReadError = false;
    VisaDefaultRM = VI_NULL;
    VisaSession = VI_NULL;
    ResourceName.clear();
    ResourceChosen = false;
    ResourceList.fill(QString());
    ScreenBuffer.fill(0);
}

} // namespace

void ResetLinkState()
{
    CloseSerialPort();
    TransportType = TransportVisa;
    Connected = false;
    Connecting = false;
    DevicePresent = false;
    LinkBusy = false;
    resetReceive();
    resetVisa();
    ComPort = 1;
    BaudRate = QStringLiteral("9600");
    SerialDevice.clear();
    LinkLampOn = false;
    ResetDeviceFacts();
}
