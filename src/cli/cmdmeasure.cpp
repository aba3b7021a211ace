#include "cli/clihelp.h"
#include "cli/clilanguage.h"
#include "cli/clilink.h"
#include "cli/subcommands.h"

#include "acquire/operation.h"
#include "analysis/exportfile.h"
#include "analysis/measurejudge.h"
#include "analysis/readmeasure.h"
#include "link/timeouttimer.h"
#include "text/language.h"

#include <QCommandLineParser>
#include <cstdio>

namespace {

enum : int { ExitPass = 0, ExitFail = 1, ExitUsage = 2 };

struct Limit {
    int row = -1;
    double under = 0;
    double over = 0;
};

struct MeasureOptions {
    LinkOptions link;
    int channel = 0;
    QList<Limit> limits;
    QString out;
    int language = -1;
};

// "Rise Time=1e-6:2e-6"; percent items take percent, kept as a fraction like the dialog's.
bool takeLimit(const QString& text, Limit& limit)
{
    const qsizetype equals = text.lastIndexOf(QLatin1Char('='));
    if (equals < 0) return false;
    limit.row = MeasureRowOf(text.left(equals).trimmed());
    const QStringList range = text.mid(equals + 1).split(QLatin1Char(':'));
    if (limit.row < 0 || range.size() != 2) return false;
    bool underOk = false, overOk = false;
    limit.under = range[0].trimmed().toDouble(&underOk);
    limit.over = range[1].trimmed().toDouble(&overOk);
    if (MeasureItems[size_t(limit.row)].family == MeasureFamily::Percent) {
        limit.under /= 100;
        limit.over /= 100;
    }
    return underOk && overOk;
}

bool parseMeasureOptions(const QStringList& arguments, MeasureOptions& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Reads one channel's eighteen measurements, judges them and writes the export.");
    AddLinkOptions(parser);
    parser.addOption({"channel", "1 to 4.", "n"});
    parser.addOption({"limit", "NAME=UNDER:OVER in volts, seconds, hertz or percent; repeated.", "limit"});
    parser.addOption({"out", "Text file to write.", "file"});
    ProcessSubcommand(parser, arguments, "measure",
                      "0  every limited item passed\n1  a limited item failed\n2  a usage error, no "
                      "instrument answered, or the file could not be written");
    if (!TakeLinkOptions(parser, "measure", options.link)) return false;
    if (!TakeLanguageOption(parser, options.language)) return false;
    bool channelOk = false;
    options.channel = parser.value("channel").toInt(&channelOk);
    options.out = parser.value("out");
    bool ok = channelOk && options.channel >= 1 && options.channel <= 4 && !options.out.isEmpty();
    for (const QString& text : parser.values("limit")) {
        Limit limit;
        ok = ok && takeLimit(text, limit);
        options.limits.append(limit);
    }
    if (ok) return true;
    std::fputs("measure: --channel 1 to 4 and --out are needed; --limit takes NAME=UNDER:OVER\n", stderr);
    return false;
}

void applyLimits(MeasureRecord& record, const QList<Limit>& limits)
{
    for (const Limit& limit : limits) {
        MeasureItem& item = record.Items[size_t(MeasureItems[size_t(limit.row)].slot)];
        item.Enabled = true;
        item.UnderLimit = limit.under;
        item.OverLimit = limit.over;
    }
}

} // namespace

int RunMeasureCommand(const QStringList& arguments)
{
    MeasureOptions options;
    if (!parseMeasureOptions(arguments, options)) return ExitUsage;
    TimeOutTimer ticks;
    if (!OpenLink(options.link)) {
        CloseLink();
        return ExitUsage;
    }
    ApplyLanguage(options.language);
    InstallMeasureOperations();
    RunReadingFrame({OperationMeasureCH1 + options.channel - 1});
    MeasureRecord record;
    TakeMeasureReading(record, options.channel);
    CloseLink();
    applyLimits(record, options.limits);
    JudgeMeasureRecord(record, Language);
    const QString error = WriteExportFile(options.out, MeasureExportText(record));
    if (!error.isEmpty()) {
        std::fprintf(stderr, "measure: can't write %s: %s\n", qPrintable(options.out), qPrintable(error));
        return ExitUsage;
    }
    return AllEnabledPass(record, Language) ? ExitPass : ExitFail;
}
