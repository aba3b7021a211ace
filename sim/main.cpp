// kv7200b-sim: serves one simulated instrument over a raw socket, VXI-11
// (with its portmapper), HiSLIP and a pseudo-terminal, or writes one of the
// instrument's files (write-wfm, write-rcd).

#include "files/filewriters.h"
#include "model/instrument.h"
#include "transport/faults.h"
#include "transport/hislipserver.h"
#include "transport/portmapper.h"
#include "transport/ptyserver.h"
#include "transport/socketserver.h"
#include "transport/vxi11server.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstdio>
#include <optional>

namespace {

const QString Loopback = "127.0.0.1";

struct PortOption {
    const char* name;
    const char* defaultValue;
};
const PortOption SocketPort{"socket-port", "5025"};
const PortOption Vxi11Port{"vxi11-port", "0"};
const PortOption PortmapperPort{"portmapper-port", "111"};
const PortOption HislipPort{"hislip-port", "4880"};

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        "A simulated KV7200B oscilloscope.\n"
        "Also: kv7200b-sim write-wfm OUT.wfm [--alternation] [--peak] [--roll] [--long-memory]\n"
        "      kv7200b-sim write-rcd OUT.rcd [--frames N] [--second-block]");
    parser.addHelpOption();
    parser.addVersionOption();
    for (const PortOption& port : {SocketPort, Vxi11Port, PortmapperPort, HislipPort})
        parser.addOption(
            {port.name,
             QString("TCP port (default %1); 0 picks a free one, off disables.").arg(port.defaultValue),
             "port", port.defaultValue});
    parser.addOption({"portmapper-address", "Address the portmapper listens on.", "address", Loopback});
    parser.addOption({"pty", "The RS232 pseudo-terminal: on or off.", "on|off", "on"});
    parser.addOption({"idn", "The *IDN? reply: vendor,model,serial,firmware.", "text"});
    parser.addOption({"silent", "Never answer this query (repeatable).", "query"});
    parser.addOption({"garbage", "Reply with noise."});
    parser.addOption({"short-blocks", "Blocks lose half their data."});
    parser.addOption({"drop-after", "Close a link when command N+1 arrives.", "n"});
    parser.addOption({"delay-ms", "Send every reply this late.", "ms"});
    parser.addOption({"log", "Log every command with a monotonic time stamp (microseconds).", "file"});
}

void complain(const QString& message)
{
    std::fprintf(stderr, "kv7200b-sim: %s\n", qPrintable(message));
}

[[noreturn]] void fail(const QString& message)
{
    complain(message);
    std::exit(2);
}

int nonNegative(const QCommandLineParser& parser, const char* name, int otherwise)
{
    if (!parser.isSet(name)) return otherwise;
    bool ok = false;
    const int value = parser.value(name).toInt(&ok);
    if (!ok || value < 0) fail(QString("--%1 wants a number of 0 or more").arg(name));
    return value;
}

// The port to listen on, or nothing when the transport is off.
std::optional<quint16> portOf(const QCommandLineParser& parser, const PortOption& option)
{
    const QString text = parser.value(option.name);
    if (text == "off") return std::nullopt;
    bool ok = false;
    const uint port = text.toUInt(&ok);
    if (!ok || port > 65535) fail(QString("--%1 wants a port number or off").arg(option.name));
    return quint16(port);
}

FaultOptions faultOptions(const QCommandLineParser& parser)
{
    FaultOptions faults;
    for (const QString& query : parser.values("silent"))
        faults.silent.append(query.toUtf8());
    faults.garbage = parser.isSet("garbage");
    faults.shortBlocks = parser.isSet("short-blocks");
    faults.dropAfter = nonNegative(parser, "drop-after", -1);
    faults.delayMs = nonNegative(parser, "delay-ms", 0);
    faults.logPath = parser.value("log");
    return faults;
}

void announce(const QString& line)
{
    std::fprintf(stdout, "%s\n", qPrintable(line));
    std::fflush(stdout);
}

// Everything one run serves: one instrument, several ways in.
class Simulator {
  public:
    Simulator(const QCommandLineParser& parser, const InstrumentOptions& identity)
        : parser_(parser), instrument_(identity),
          faults_([this](const QByteArray& line) { return instrument_.handle(line); }, faultOptions(parser))
    {
    }

    void start()
    {
        QString error;
        if (!faults_.openLog(&error)) fail("can't write the log: " + error);
        startTcp(socket_, SocketPort, "socket", Loopback);
        startTcp(vxi11_, Vxi11Port, "vxi11", Loopback);
        if (vxi11_.port() != 0)
            portmapper_.registerService(vxi11::CoreProgram, vxi11::Version, 6, vxi11_.port());
        startTcp(portmapper_, PortmapperPort, "portmapper", parser_.value("portmapper-address"));
        startTcp(hislip_, HislipPort, "hislip", Loopback);
        startPty();
        announce("ready");
    }

  private:
    // A port given on the command line must be served; a default one that is taken only earns a warning.
    void startTcp(TcpService& service, const PortOption& option, const char* name, const QString& address)
    {
        const std::optional<quint16> port = portOf(parser_, option);
        if (!port) return;
        if (service.listen(QHostAddress(address), *port))
            return announce(QString("%1 %2 %3").arg(name, address).arg(service.port()));
        const QString message =
            QString("%1 can't listen on %2:%3: %4").arg(name, address).arg(*port).arg(service.errorString());
        if (parser_.isSet(option.name)) fail(message);
        complain(message);
    }

    void startPty()
    {
        const QString pty = parser_.value("pty");
        if (pty != "on" && pty != "off") fail("--pty wants on or off");
        if (pty == "off") return;
        QString error;
        if (!pty_.open(&error)) fail("no pseudo-terminal: " + error);
        announce("pty " + pty_.slavePath());
    }

    const QCommandLineParser& parser_;
    Instrument instrument_;
    Faults faults_;
    SocketServer socket_{faults_};
    Vxi11Server vxi11_{faults_};
    Portmapper portmapper_;
    HislipServer hislip_{faults_};
    PtyServer pty_{faults_};
};

InstrumentOptions identity(const QCommandLineParser& parser)
{
    InstrumentOptions options;
    if (parser.isSet("idn")) options.idn = parser.value("idn");
    return options;
}

bool isFileWriter(const QString& command)
{
    return command == "write-wfm" || command == "write-rcd";
}

// write-wfm and write-rcd: the instrument's own files, written from its state.
int runFileWriter(const QString& command, const QStringList& args)
{
    return command == "write-wfm" ? runWriteWfm(args) : runWriteRcd(args);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName("kv7200b-sim");
    QCoreApplication::setApplicationVersion("0.1");
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1 && isFileWriter(arguments[1]))
        return runFileWriter(arguments[1], arguments.mid(2));

    QCommandLineParser parser;
    addOptions(parser);
    parser.process(app);
    Simulator simulator(parser, identity(parser));
    simulator.start();
    return app.exec();
}
