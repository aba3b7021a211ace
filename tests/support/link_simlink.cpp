#include "link_simlink.h"

#include "link/linkstate.h"
#include "link/visaopen.h"
#include "state/programstate.h"
#include "visa/visaconfig.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

std::string transportName(LinkTransport transport)
{
    const char* names[] = {"SOCKET", "VXI11", "HiSLIP", "RS232"};
    return names[int(transport)];
}

SimLink::SimLink(const QStringList& options) : sim_(SELVANE_SIM_PATH)
{
    started_ =
        sim_.start(QStringList{"--idn", SupportedIdentity, "--log", dir_.filePath("commands.log")} + options);
}

void SimLink::aim(LinkTransport transport)
{
    const QString host = QStringLiteral("TCPIP0::127.0.0.1::");
    const QString vxi11 = host + "inst0::INSTR";
    const QString socket = host + QString::number(sim_.port("socket")) + "::SOCKET";
    const QString hislip = host + "hislip0," + QString::number(sim_.port("hislip")) + "::INSTR";
    qputenv("SELVANE_PORTMAPPER_PORT", QByteArray::number(sim_.port("portmapper")));
    TransportType = transport == LinkTransport::Serial ? TransportRs232 : TransportVisa;
    SerialDevice = sim_.ptyPath();
    switch (transport) {
    case LinkTransport::Socket:
        // The find lists instruments only: a socket is opened as the resource chosen
        // beforehand, while the find sees the VXI-11 instrument.
        selvaneVisaSetConfiguredResources({socket.toStdString(), vxi11.toStdString()});
        ResourceName = socket;
        ResourceChosen = true;
        break;
    case LinkTransport::Vxi11: selvaneVisaSetConfiguredResources({vxi11.toStdString()}); break;
    case LinkTransport::Hislip: selvaneVisaSetConfiguredResources({hislip.toStdString()}); break;
    case LinkTransport::Serial: selvaneVisaSetConfiguredResources({}); break;
    }
}

QStringList SimLink::loggedCommands() const
{
    QStringList commands;
    for (const auto& entry : loggedEntries())
        commands.append(entry.second);
    return commands;
}

QList<QPair<qint64, QString>> SimLink::loggedEntries() const
{
    QFile log(dir_.filePath("commands.log"));
    QList<QPair<qint64, QString>> entries;
    if (!log.open(QIODevice::ReadOnly)) return entries;
    for (const QByteArray& line : log.readAll().split('\n')) {
        const qsizetype blank = line.indexOf(' ');
        if (blank > 0)
            entries.append({line.left(blank).toLongLong(), QString::fromUtf8(line.mid(blank + 1))});
    }
    return entries;
}

bool SimLink::waitForLogged(const QString& command, int count, int timeoutMs) const
{
    const QDeadlineTimer deadline(timeoutMs);
    while (loggedCommands().count(command) < count) {
        if (deadline.hasExpired()) return false;
        QThread::msleep(20);
    }
    return true;
}

SimLinkTest::SimLinkTest()
{
    qputenv("SELVANE_VISA", "builtin");
    ResetProgramState();
    OpenVisaRM();
}

SimLinkTest::~SimLinkTest()
{
    CloseVisaRM();
    selvaneVisaSetConfiguredResources({});
    ResetProgramState();
}

QStringList SimLinkTest::boxTexts() const
{
    QStringList texts;
    for (const RecordedBox& box : platform->boxes)
        texts.append(box.title + "|" + box.text);
    return texts;
}
