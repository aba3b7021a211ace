#include "link/connection.h"

#include "link/devicefacts.h"
#include "link/firmware.h"
#include "link/linkcommands.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/restriction.h"
#include "link/serialtransport.h"
#include "link/visalibrary.h"
#include "link/visaopen.h"
#include "link/vocabulary.h"
#include "platform/platform.h"
#include "text/keywords.h"
#include "text/language.h"
#include "text/messages.h"
#include "text/steplists.h"
#include "text/valuetext.h"

namespace {

enum class Identity { Accepted, Refused, FirmwareRefused };

// A short pause after an identity that doesn't start with the pattern.
constexpr int MismatchPauseMs = 50;

// The model field of an upper-case identity; records what it says of the model.
Identity takeModel(const QString& identity, qsizetype vendorEnd)
{
    SetHasLa(false);
    ModelName = identity.mid(vendorEnd + 1).section(QLatin1Char(','), 0, 0);
    if (ModelName.mid(6) == QLatin1String("B")) ModelIsSupported = 1;
    BandwidthClass = uint8_t(BandwidthClassOf(int(Val(ModelName.mid(3, 2)))));
    if (ModelIsSupported != 1) return Identity::Refused;
    SampleBase = 0;
    return Identity::Accepted;
}

Identity identifyDevice()
{
    const QString identity = AskCmd(Vocab::Whole::Idn).toUpper();
    if (identity.left(IdnPattern.size()) != IdnPattern) Sleep(MismatchPauseMs);
    const qsizetype vendorEnd = identity.indexOf(QLatin1Char(','));
    if (vendorEnd < 0 || identity.left(vendorEnd) != IdnPattern.chopped(4)) return Identity::Refused;
    FirmwareVersion = ExtractFirmwareVersion(identity);
    if (!IsFirmwareSupported(FirmwareVersion)) return Identity::FirmwareRefused;
    return takeModel(identity, vendorEnd);
}

void connectionMade()
{
    SetLinkLamp(true);
    Connected = true;
    const QString reply = AskCmd(Vocab::Query({Vocab::Piece::Math, Vocab::Piece::Display}));
    // The wire's words whatever the language: readers compare it with "OFF".
    MathDisplay = OnOffFromReply(reply, LanguageEnglish);
}

void connectionFailed()
{
    SetLinkLamp(false);
    Connected = false;
    MathDisplay = Vocab::Word::Off;
}

} // namespace

void ConnectDevice()
{
    Connecting = true;
    DevicePresent = true;
    if (TransportType == TransportRs232)
        Rs232Open();
    else
        UsbOpen();
    const Identity identity = DevicePresent ? identifyDevice() : Identity::Refused;
    if (identity == Identity::FirmwareRefused) {
        MsgBox(RestrictionMessage(RestrictionFirmware, Language), vbOKOnly, QString());
        Connected = false;
        return;
    }
    if (identity == Identity::Accepted) {
        connectionMade();
    } else {
        if (DevicePresent) MsgBox(MsgDeviceNotFound, vbExclamation, MsgConnectTitle);
        connectionFailed();
    }
    Connecting = false;
}

void DisconnectDevice()
{
    if (!Connected) return;
    WriteCmd(Vocab::KeyLockCommand(false));
    SetLinkLamp(false);
    Connected = false;
    Visa().clear(VisaSession);
    Visa().close(VisaSession);
}
