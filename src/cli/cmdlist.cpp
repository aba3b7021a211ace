// selvane-cli list: what the VISA layer finds, and who answers *IDN? there.
#include "cli/clihelp.h"
#include "cli/scpisession.h"
#include "cli/subcommands.h"

#include "visa/visaconfig.h"

#include <QCommandLineParser>
#include <cstdio>
#include <string>
#include <vector>

namespace {

enum : int { ExitAnswered = 0, ExitNoAnswer = 1, ExitUsage = 2 };

bool isSerial(const QString& name)
{
    return name.startsWith(QLatin1String("ASRL"), Qt::CaseInsensitive);
}

} // namespace

int RunListCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Lists the VISA resources found: USBTMC devices, the network resources named in\n"
        "SELVANE_VISA_RESOURCES and the VISA configuration file (~/.config/selvane/visa.conf,\n"
        "one a line), and with --serial the serial ports. Each is asked *IDN?; a line\n"
        "holds the resource, a tab and the identity, or the resource alone when it\n"
        "did not answer. Serial ports are asked only on request: whatever is attached\n"
        "gets the bytes.");
    parser.addOption({"serial", "Also list and ask the serial ports (ASRL resources)."});
    parser.addOption({"resource", "One more resource to list; repeated.", "name"});
    parser.addOption({"baud", "Baud rate for the serial ports.", "rate", "9600"});
    parser.addOption({"timeout", "How long to wait for each answer.", "ms", "2000"});
    ProcessSubcommand(parser, arguments, "list",
                      "0  at least one resource answered\n1  no resource answered\n2  a usage error");
    bool baudOk = false, timeoutOk = false;
    const int baud = parser.value("baud").toInt(&baudOk);
    const int timeout = parser.value("timeout").toInt(&timeoutOk);
    if (!baudOk || !timeoutOk || baud <= 0 || timeout < 0 || !parser.positionalArguments().isEmpty()) {
        std::fputs("list: --baud and --timeout take positive numbers; no arguments\n", stderr);
        return ExitUsage;
    }
    std::vector<std::string> extra;
    for (const QString& name : parser.values("resource"))
        extra.push_back(name.toStdString());
    selvaneVisaSetConfiguredResources(extra);

    const ScpiResourceManager manager;
    int answered = 0, found = 0;
    for (const QString& name : manager.find("?*")) {
        if (isSerial(name) && !parser.isSet("serial")) continue;
        ++found;
        ScpiSession session(manager, name, timeout, baud);
        const ScpiReply reply = session.isOpen() && session.send("*IDN?") ? session.read() : ScpiReply{};
        if (reply.answered && !reply.block) {
            std::printf("%s\t%s\n", qPrintable(name), reply.bytes.constData());
            ++answered;
        } else {
            std::printf("%s\n", qPrintable(name));
        }
        std::fflush(stdout);
    }
    if (found == 0) std::fputs("list: no resources found\n", stderr);
    return answered > 0 ? ExitAnswered : ExitNoAnswer;
}
