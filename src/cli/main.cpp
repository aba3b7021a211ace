#include "cli/subcommands.h"
#include "platform/cliplatform.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <cstdio>

namespace {

struct Subcommand {
    const char* name;
    const char* summary;
    int (*run)(const QStringList& arguments);
};

constexpr Subcommand subcommands[] = {
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
    {"sheet", "Load a data sheet file and write its windows as JSON or save it again.", RunSheetCommand},
};

const Subcommand* findSubcommand(const QStringList& arguments)
{
    if (arguments.size() < 2) return nullptr;
    for (const Subcommand& command : subcommands)
        if (arguments.at(1) == QLatin1String(command.name)) return &command;
    return nullptr;
}

QString subcommandList()
{
    QString text = QStringLiteral("\nSubcommands (each has --help):\n");
    for (const Subcommand& command : subcommands)
        text += QStringLiteral("  %1  %2\n").arg(QLatin1String(command.name), QLatin1String(command.summary));
    return text;
}

} // namespace

int main(int argc, char** argv)
{
    // Pictures are drawn with text, which needs a GUI application; no display is needed.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName("selvane-cli");
    QCoreApplication::setApplicationVersion("00.01.05.00.00");
    installPlatform(std::make_unique<CliPlatform>());

    QStringList arguments = QCoreApplication::arguments();
    if (const Subcommand* command = findSubcommand(arguments)) {
        arguments.removeAt(1);
        return command->run(arguments);
    }
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Selvane without windows: the program's routines for scripts and test benches." + subcommandList());
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("subcommand", "One of the subcommands below.");
    parser.process(app);
    if (!parser.positionalArguments().isEmpty()) {
        std::fprintf(stderr, "Unknown subcommand: %s\n", qPrintable(parser.positionalArguments().first()));
        return 2;
    }
    return 0;
}
