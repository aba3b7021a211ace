#pragma once
// selvane-cli, or another program of ours, run as a child with a deadline:
// its exit status and what it printed.

#include <QProcess>
#include <QTemporaryDir>

struct CliRun {
    int status = -1; // also when it did not finish in time
    QString out;
    QString err;
};

inline CliRun runProgram(const QString& program, const QStringList& arguments,
                         const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
                         const QByteArray& input = {})
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000)) return {};
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

inline CliRun runCli(const QStringList& arguments,
                     const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
                     const QByteArray& input = {})
{
    return runProgram(QStringLiteral(SELVANE_CLI_PATH), arguments, environment, input);
}

// A first start on our own VISA layer: the settings store under `home` is
// empty, so the program speaks English and knows no configured instrument.
inline QProcessEnvironment firstStart(const QTemporaryDir& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("SELVANE_VISA", "builtin");
    environment.insert("HOME", home.path());
    environment.insert("XDG_CONFIG_HOME", home.path());
    return environment;
}
