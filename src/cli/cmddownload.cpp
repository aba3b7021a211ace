#include "cli/clihelp.h"
#include "cli/clilink.h"
#include "cli/progressline.h"
#include "cli/subcommands.h"

#include "acquire/operation.h"
#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "controller/download.h"
#include "link/timeouttimer.h"

#include <QCommandLineParser>
#include <cstdio>

int RunDownloadCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Connects, reads every setting of the instrument as the Download button does\n"
        "and writes them as a control file (--out FILE.rmt).");
    AddLinkOptions(parser);
    parser.addOption({"out", "The control file to write.", "file"});
    ProcessSubcommand(parser, arguments, "download",
                      "0  the control file was written\n2  a usage error, no instrument answered, or the "
                      "file could not be written");
    LinkOptions options;
    if (!TakeLinkOptions(parser, QStringLiteral("download"), options)) return 2;
    const QString out = parser.value("out");
    if (out.isEmpty()) {
        std::fprintf(stderr, "download: give --out FILE.rmt\n");
        return 2;
    }

    TimeOutTimer ticks; // serial replies are waited for on its ticks
    if (!OpenLinkOrSayNotFound(options)) return 2;
    ResetCtrlState(); // the New defaults in the chosen language
    InstallDownloadOperation();
    {
        const ProgressLineView progress("download");
        RunReadingFrame({OperationDownload});
    }
    AfterDownload();
    CloseLink();
    return WriteCtrlFile(out) ? 0 : 2;
}
