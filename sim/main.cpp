#include <QCommandLineParser>
#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName("kv7200b-sim");
    QCoreApplication::setApplicationVersion("0.1");
    QCommandLineParser parser;
    parser.setApplicationDescription("A simulated KV7200B oscilloscope.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(app);
    return 0;
}
