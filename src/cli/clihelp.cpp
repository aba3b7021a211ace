#include "cli/clihelp.h"

#include <cstdio>
#include <cstdlib>

namespace {

// Qt's usage line names the executable by the path it was started with; ours
// names the program and the subcommand, as the user types them.
QString helpText(const QCommandLineParser& parser, const char* name, const char* exitStatus)
{
    QString text = parser.helpText();
    const qsizetype usageEnd = text.indexOf(u'\n');
    QString usage = text.left(usageEnd);
    const qsizetype options = usage.indexOf(QLatin1String(" [options]"));
    if (usage.startsWith(QLatin1String("Usage: ")) && options > 0)
        usage = QStringLiteral("Usage: selvane-cli %1%2").arg(QLatin1String(name), usage.mid(options));
    text = usage + text.mid(usageEnd);
    if (!text.endsWith(u'\n')) text += u'\n';
    text += QStringLiteral("\nExit status:\n");
    for (const QString& line : QString::fromUtf8(exitStatus).split(u'\n', Qt::SkipEmptyParts))
        text += QStringLiteral("  ") + line + u'\n';
    return text;
}

} // namespace

void ProcessSubcommand(QCommandLineParser& parser, const QStringList& arguments, const char* name,
                       const char* exitStatus)
{
    parser.addHelpOption();
    if (!parser.parse(arguments)) {
        std::fprintf(stderr, "%s: %s\nTry 'selvane-cli %s --help'.\n", name, qPrintable(parser.errorText()),
                     name);
        std::exit(2);
    }
    if (!parser.isSet(QStringLiteral("help")) && !parser.isSet(QStringLiteral("help-all"))) return;
    std::fputs(helpText(parser, name, exitStatus).toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
    std::exit(0);
}
