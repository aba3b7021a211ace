#include "cli/clihelp.h"
#include "cli/clilink.h"
#include "cli/subcommands.h"

#include "link/linkcommands.h"
#include "link/timeouttimer.h"
#include "link/vocabulary.h"
#include "text/valuetext.h"

#include <QCommandLineParser>
#include <cstdio>

int RunIdnCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Connects to the instrument as the program does and prints its identity.\n"
        "A SOCKET resource is opened only when the find lists an instrument: give one\n"
        "more --resource (or SELVANE_VISA_RESOURCES) naming an INSTR resource.");
    AddLinkOptions(parser);
    ProcessSubcommand(parser, arguments, "idn",
                      "0  the identity was printed\n1  no instrument answered\n2  a usage error");
    LinkOptions options;
    if (!TakeLinkOptions(parser, QStringLiteral("idn"), options)) return 2;

    TimeOutTimer ticks; // serial replies are waited for on its ticks
    QString identity;
    if (OpenLink(options)) identity = StripAtLineFeed(AskCmd(Vocab::Whole::Idn));
    CloseLink();
    if (identity.isEmpty()) return 1;
    std::printf("%s\n", identity.toLocal8Bit().constData());
    return 0;
}
