// selvane-cli scpi: talk to an instrument by hand or from a pipe.
#include "cli/clihelp.h"
#include "cli/scpisession.h"
#include "cli/subcommands.h"

#include <QCommandLineParser>
#include <QFile>
#include <cstdio>
#include <iostream>
#include <string>

namespace {

enum : int { ExitDone = 0, ExitFailed = 1, ExitUsage = 2 };

struct ScpiOptions {
    QString resource;
    QString out;
    int timeout = 0;
    int baud = 0;
    QStringList commands;
};

bool parseScpiOptions(const QStringList& arguments, ScpiOptions& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Sends SCPI commands to one VISA resource and prints each reply on a line of its\n"
        "own. A reply that is a #<n><length> block is told by its length, and its bytes\n"
        "go to --out when given (every block of the run, one after the other). Without\n"
        "commands they are read from standard input, one a line, until its end.");
    parser.addOption({"resource", "The VISA resource to open.", "name"});
    parser.addOption({"out", "File that receives the blocks' bytes.", "file"});
    parser.addOption({"timeout", "How long to wait for a reply.", "ms", "10000"});
    parser.addOption({"baud", "Baud rate of a serial (ASRL) resource.", "rate", "9600"});
    parser.addPositionalArgument("commands", "Commands such as *IDN?; a command with ? is read back.",
                                 "[COMMAND...]");
    ProcessSubcommand(parser, arguments, "scpi",
                      "0  every command was sent and every query answered\n"
                      "1  the resource could not be opened, a command not sent, a query not\n"
                      "   answered, or --out not written\n"
                      "2  a usage error");
    bool timeoutOk = false, baudOk = false;
    options.resource = parser.value("resource");
    options.out = parser.value("out");
    options.timeout = parser.value("timeout").toInt(&timeoutOk);
    options.baud = parser.value("baud").toInt(&baudOk);
    options.commands = parser.positionalArguments();
    if (!options.resource.isEmpty() && timeoutOk && baudOk && options.timeout >= 0 && options.baud > 0)
        return true;
    std::fputs("scpi: give --resource NAME; --timeout and --baud take numbers\n", stderr);
    return false;
}

class Exchange {
  public:
    Exchange(ScpiSession& session, QFile* out) : session_(session), out_(out) {}

    // False when the command failed; the reason is on stderr.
    bool run(const QByteArray& command)
    {
        if (!session_.send(command)) {
            std::fprintf(stderr, "scpi: could not send %s\n", command.constData());
            return false;
        }
        if (!IsQuery(command)) return true;
        const ScpiReply reply = session_.read();
        if (!reply.answered) {
            std::fprintf(stderr, "scpi: no reply to %s\n", command.constData());
            return false;
        }
        const bool written = !reply.block || writeBlock(reply.bytes);
        if (reply.block)
            std::printf("[block of %lld bytes]\n", static_cast<long long>(reply.bytes.size()));
        else
            std::printf("%s\n", reply.bytes.constData());
        std::fflush(stdout);
        return written;
    }

  private:
    bool writeBlock(const QByteArray& bytes)
    {
        if (!out_ || out_->write(bytes) == bytes.size()) return true;
        std::fprintf(stderr, "scpi: can't write %s: %s\n", qPrintable(out_->fileName()),
                     qPrintable(out_->errorString()));
        return false;
    }

    ScpiSession& session_;
    QFile* out_;
};

} // namespace

int RunScpiCommand(const QStringList& arguments)
{
    ScpiOptions options;
    if (!parseScpiOptions(arguments, options)) return ExitUsage;
    QFile out(options.out);
    if (!options.out.isEmpty() && !out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::fprintf(stderr, "scpi: can't write %s: %s\n", qPrintable(options.out),
                     qPrintable(out.errorString()));
        return ExitFailed;
    }
    const ScpiResourceManager manager;
    ScpiSession session(manager, options.resource, options.timeout, options.baud);
    if (!session.isOpen()) {
        std::fprintf(stderr, "scpi: can't open %s (status 0x%08X)\n", qPrintable(options.resource),
                     static_cast<unsigned>(session.openStatus()));
        return ExitFailed;
    }
    Exchange exchange(session, options.out.isEmpty() ? nullptr : &out);
    bool allWent = true;
    for (const QString& command : options.commands)
        allWent = exchange.run(command.toLatin1()) && allWent;
    if (options.commands.isEmpty()) {
        for (std::string line; std::getline(std::cin, line);) {
            const QByteArray command = QByteArray::fromStdString(line).trimmed();
            if (!command.isEmpty()) allWent = exchange.run(command) && allWent;
        }
    }
    return allWent ? ExitDone : ExitFailed;
}
