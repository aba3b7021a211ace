#include "cli/subcommands.h"
#include "platform/cliplatform.h"
#include "platform/runtimedir.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <cstdio>

namespace {

struct Subcommand {
    const char* name;
    const char* summary;
    int (*run)(const QStringList& arguments);
};

constexpr Subcommand Subcommands[] = {
    {"idn", "Connect to the instrument and print its identity.", RunIdnCommand},
    {"wave", "Read one wave window snapshot and write its picture.", RunWaveCommand},
    {"table", "Read one channel as a data table and write its export text.", RunTableCommand},
    {"download", "Read every setting of the instrument and write a control file.", RunDownloadCommand},
    {"upload", "Send every setting of a control file to the instrument.", RunUploadCommand},
    {"set", "Change one setting by its tree path and print the node's new text.", RunSetCommand},
    {"measure", "Read one channel's measurements, judge them against limits and write the export.",
     RunMeasureCommand},
    {"screen", "Read the instrument's screen picture and write it.", RunScreenCommand},
    {"key", "Press front-panel keys by control name, holding some for a number of ticks.", RunKeyCommand},
    {"wfm", "Load waveform files as the memory wave window does; JSON, CSV, picture or a CSV batch.",
     RunWfmCommand},
    {"rcd", "Load a record file and write its fields, one frame or every frame as pictures.", RunRcdCommand},
    {"list", "List the VISA resources found and the identity of each that answers.", RunListCommand},
    {"scpi", "Send commands to a resource and print the replies; from stdin when none are given.",
     RunScpiCommand},
    {"sheet", "Load a data sheet file and write its windows as JSON or save it again.", RunSheetCommand},
};

const Subcommand* findSubcommand(const QStringList& arguments)
{
    if (arguments.size() < 2) return nullptr;
    for (const Subcommand& command : Subcommands)
        if (arguments.at(1) == QLatin1String(command.name)) return &command;
    return nullptr;
}

QString subcommandList()
{
    QString text = QStringLiteral("\n\nSubcommands (each has --help):\n");
    for (const Subcommand& command : Subcommands)
        text += QStringLiteral("  %1  %2\n")
                    .arg(QLatin1String(command.name), -8)
                    .arg(QLatin1String(command.summary));
    return text;
}

int usageError(const QString& text)
{
    std::fprintf(stderr, "selvane-cli: %s\nTry 'selvane-cli --help'.\n", qPrintable(text));
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    // Pictures are drawn with text, which needs a GUI application; no display is needed.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    SetPrivateRuntimeDir();
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName("selvane-cli");
    QCoreApplication::setApplicationVersion("00.01.05.00.00");
    installPlatform(std::make_unique<CliPlatform>());

    QStringList arguments = QCoreApplication::arguments();
    if (const Subcommand* command = findSubcommand(arguments)) {
        arguments.removeAt(1);
        return command->run(arguments);
    }
    // "selvane-cli wfmx --help" is a mistyped subcommand, not a request for the general help.
    if (arguments.size() > 1 && !arguments.at(1).startsWith(u'-'))
        return usageError(QStringLiteral("unknown subcommand '%1'").arg(arguments.at(1)));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Selvane without windows: the program's routines for scripts and test benches." + subcommandList() +
        "\nExit status: 0 done; 1 the instrument or a file failed; 2 a usage error;\n"
        "3 a file or value was refused. Each subcommand's --help tells its own.");
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument("subcommand", "One of the subcommands above.", "SUBCOMMAND [options]");
    if (!parser.parse(arguments)) return usageError(parser.errorText());
    if (parser.isSet(help) || parser.isSet(QStringLiteral("help-all"))) {
        std::fputs(qPrintable(parser.helpText().replace(arguments.first(), QStringLiteral("selvane-cli"))),
                   stdout);
        return 0;
    }
    if (parser.isSet(version)) {
        std::printf("selvane-cli %s\n", qPrintable(QCoreApplication::applicationVersion()));
        return 0;
    }
    if (parser.positionalArguments().isEmpty()) return usageError(QStringLiteral("name a subcommand"));
    return usageError(QStringLiteral("options go after the subcommand"));
}
