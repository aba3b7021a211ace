#include "frame/optionschoice.h"

#include "text/valuetext.h"
#include "settings/softwaresettings.h"
#include "link/connection.h"
#include "link/linkcommands.h"
#include "link/linkstate.h"
#include "link/visalibrary.h"

#include <QStringList>

namespace {

void tellBaudRate(const QString& baudText)
{
    const QString rate = baudText.trimmed();
    if (!Connected || rate == BaudRate) return;
    WriteCmd(QStringLiteral(":RS232:BAUD ") + rate);
    BaudRate = rate;
}

int numberOf(const QString& text)
{
    return static_cast<int>(Val(text));
}

} // namespace

void ApplyOptions(const OptionsChoice& choice)
{
    tellBaudRate(choice.baudText);
    if (Connected) DisconnectDevice();
    StartupCheckHardware = choice.startupCheckHardware;
    StartupLoadSheet = choice.startupLoadSheet;
    StartupLoadCtrl = choice.startupLoadCtrl;
    RefreshType = choice.autoRefresh ? RefreshAuto : RefreshSingle;
    RefreshInterval = numberOf(choice.intervalText) * 1000;
    TransportType = choice.rs232 ? 2 : 0;
    ComPort = PortNumber(choice.portText);
    BaudRate = choice.baudText.trimmed();
    GpibAddress = numberOf(choice.gpibText);
    ResourceChosen = !choice.resource.isEmpty();
    ResourceName = choice.resource;
}

int PortNumber(const QString& portText)
{
    QString digits;
    for (const QChar c : portText)
        if (c.isDigit()) digits.append(c);
    return digits.left(9).toInt();
}

QString ShortResourceText(const QString& resource)
{
    QStringList fields = resource.split(QStringLiteral("::"));
    if (fields.size() > 1) fields.removeFirst();
    if (fields.size() > 1 && fields.last().compare(QStringLiteral("INSTR"), Qt::CaseInsensitive) == 0)
        fields.removeLast();
    return fields.join(QLatin1Char(' '));
}

QStringList FindUsbResources()
{
    QStringList found;
    ViFindList list = 0;
    ViUInt32 count = 0;
    ViChar description[VI_FIND_BUFLEN] = {};
    if (Visa().findRsrc(VisaDefaultRM, "USB?*INSTR", &list, &count, description) < VI_SUCCESS) return found;
    found.append(QString::fromLatin1(description));
    for (ViUInt32 i = 1; i < count && Visa().findNext(list, description) >= VI_SUCCESS; ++i)
        found.append(QString::fromLatin1(description));
    Visa().close(list);
    return found;
}
