#include "cli/clihelp.h"
#include "cli/clilink.h"
#include "cli/progressline.h"
#include "cli/subcommands.h"

#include "acquire/operation.h"
#include "controller/ctrlfile.h"
#include "controller/upload.h"
#include "link/timeouttimer.h"

#include <QCommandLineParser>
#include <cstdio>

namespace {
enum : int { ExitSent = 0, ExitUsage = 2, ExitRefused = 3 };
}

int RunUploadCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Connects, reads a control file (--in FILE.rmt) and sends every setting in it\n"
        "to the instrument as the Upload button does.");
    AddLinkOptions(parser);
    parser.addOption({"in", "The control file to send.", "file"});
    ProcessSubcommand(parser, arguments, "upload",
                      "0  every setting was sent\n2  a usage error, or no instrument answered\n3  the "
                      "control file was refused");
    LinkOptions options;
    if (!TakeLinkOptions(parser, QStringLiteral("upload"), options)) return ExitUsage;
    const QString in = parser.value("in");
    if (in.isEmpty()) {
        std::fprintf(stderr, "upload: give --in FILE.rmt\n");
        return ExitUsage;
    }

    TimeOutTimer ticks; // serial replies are waited for on its ticks
    if (!OpenLinkOrSayNotFound(options)) return ExitUsage;
    // Value words are compared in the language in force, so the file is read after it is set.
    if (!ReadCtrlFile(in)) {
        CloseLink();
        return ExitRefused;
    }
    BeforeUpload();
    InstallUploadOperation();
    {
        const ProgressLineView progress("upload");
        RunReadingFrame({OperationUpload});
    }
    CloseLink();
    return ExitSent;
}
