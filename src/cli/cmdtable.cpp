#include "cli/clihelp.h"
#include "cli/clilink.h"
#include "cli/subcommands.h"

#include "acquire/operation.h"
#include "analysis/dataexport.h"
#include "analysis/exportfile.h"
#include "link/timeouttimer.h"

#include <QCommandLineParser>
#include <cstdio>

namespace {

const QStringList TableChannels = {QStringLiteral("CH1"), QStringLiteral("CH2"), QStringLiteral("CH3"),
                                   QStringLiteral("CH4")};

struct TableOptions {
    LinkOptions link;
    QString channel;
    QString out;
};

bool parseTableOptions(const QStringList& arguments, TableOptions& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Reads one channel as a data table and writes its export text.");
    AddLinkOptions(parser);
    parser.addOption({"channel", "CH1 to CH4.", "channel", "CH1"});
    parser.addOption({"out", "Text file to write.", "file"});
    ProcessSubcommand(parser, arguments, "table",
                      "0  the export text was written\n1  no instrument answered, or the file could not be "
                      "written\n2  a usage error");
    if (!TakeLinkOptions(parser, "table", options.link)) return false;
    options.channel = parser.value("channel").toUpper();
    options.out = parser.value("out");
    if (TableChannels.contains(options.channel) && !options.out.isEmpty()) return true;
    std::fputs("table: --out is needed; --channel takes CH1 to CH4\n", stderr);
    return false;
}

} // namespace

int RunTableCommand(const QStringList& arguments)
{
    TableOptions options;
    if (!parseTableOptions(arguments, options)) return 2;
    TimeOutTimer ticks;
    if (!OpenLink(options.link)) {
        CloseLink();
        return 1;
    }
    RunReadingFrame({OperationTableCH1 + int(TableChannels.indexOf(options.channel))});
    DataRecord record;
    record.Channel = options.channel;
    TakeTableReading(record);
    CloseLink();
    if (WriteExportFile(options.out, DataExportText(record)).isEmpty()) return 0;
    std::fprintf(stderr, "table: can't write %s\n", qPrintable(options.out));
    return 1;
}
