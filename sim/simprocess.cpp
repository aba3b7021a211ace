#include "simprocess.h"

#include <QDeadlineTimer>

SimProcess::SimProcess(QString program) : program_(std::move(program))
{
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

SimProcess::~SimProcess()
{
    stop();
}

QStringList SimProcess::freePortOptions()
{
    return {"--socket-port", "0", "--vxi11-port", "0", "--portmapper-port", "0", "--hislip-port", "0"};
}

bool SimProcess::start(const QStringList& options, int timeoutMs)
{
    stop();
    process_.start(program_, freePortOptions() + options);
    if (!process_.waitForStarted(timeoutMs)) {
        error_ = process_.errorString();
        return false;
    }
    if (readAnnouncements(timeoutMs)) return true;
    stop();
    return false;
}

void SimProcess::stop()
{
    if (process_.state() != QProcess::NotRunning) {
        process_.kill();
        process_.waitForFinished(5000);
    }
    ports_.clear();
    ptyPath_.clear();
    ready_ = false;
}

bool SimProcess::readAnnouncements(int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (!ready_) {
        while (!ready_ && process_.canReadLine())
            takeLine(process_.readLine().trimmed());
        if (ready_) break;
        if (process_.state() == QProcess::NotRunning || deadline.hasExpired()) {
            error_ = process_.state() == QProcess::NotRunning ? "the simulator exited before it was ready"
                                                              : "the simulator did not get ready in time";
            return false;
        }
        process_.waitForReadyRead(int(qMax<qint64>(1, deadline.remainingTime())));
    }
    return true;
}

// "socket 127.0.0.1 5025", "pty /dev/pts/7", "ready".
void SimProcess::takeLine(const QByteArray& line)
{
    const QList<QByteArray> words = line.split(' ');
    if (line == "ready")
        ready_ = true;
    else if (words.size() == 2 && words[0] == "pty")
        ptyPath_ = QString::fromLocal8Bit(words[1]);
    else if (words.size() == 3)
        ports_.insert(QString::fromLatin1(words[0]), quint16(words[2].toUInt()));
}
