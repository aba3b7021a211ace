#include "platform/cliplatform.h"

#include <QCommandLineParser>
#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName("selvane-cli");
    QCoreApplication::setApplicationVersion("00.01.05.00.00");
    installPlatform(std::make_unique<CliPlatform>());

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Selvane without windows: the program's routines for scripts and test benches.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(app);
    return 0;
}
