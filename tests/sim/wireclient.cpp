#include "wireclient.h"

#include <QDeadlineTimer>
#include <gtest/gtest.h>

bool WireClient::connectTo(quint16 port, int timeoutMs)
{
    socket_.connectToHost(QHostAddress::LocalHost, port);
    return socket_.waitForConnected(timeoutMs);
}

void WireClient::send(const QByteArray& bytes)
{
    socket_.write(bytes);
    socket_.waitForBytesWritten(3000);
}

bool WireClient::waitForMore(qint64 remainingMs)
{
    if (remainingMs <= 0 || socket_.state() != QAbstractSocket::ConnectedState) return false;
    if (!socket_.waitForReadyRead(int(remainingMs))) return false;
    buffer_ += socket_.readAll();
    return true;
}

QByteArray WireClient::take(qsizetype n, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    buffer_ += socket_.readAll();
    while (buffer_.size() < n && waitForMore(deadline.remainingTime()))
        ;
    const QByteArray bytes = buffer_.left(n);
    buffer_.remove(0, bytes.size());
    return bytes;
}

QByteArray WireClient::takeLine(int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    buffer_ += socket_.readAll();
    while (!buffer_.contains('\n') && waitForMore(deadline.remainingTime()))
        ;
    const qsizetype end = buffer_.indexOf('\n');
    return end < 0 ? QByteArray() : take(end + 1, 0);
}

QByteArray WireClient::collect(int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (waitForMore(deadline.remainingTime()))
        ;
    return std::exchange(buffer_, QByteArray());
}

bool WireClient::waitClosed(int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (socket_.state() == QAbstractSocket::ConnectedState && !deadline.hasExpired())
        socket_.waitForReadyRead(int(qMax<qint64>(1, deadline.remainingTime())));
    buffer_ += socket_.readAll();
    return socket_.state() != QAbstractSocket::ConnectedState;
}

std::unique_ptr<SimProcess> startSim(const QStringList& options)
{
    auto sim = std::make_unique<SimProcess>(SELVANE_SIM_PATH);
    if (!sim->start(options)) {
        ADD_FAILURE() << "kv7200b-sim did not start: " << sim->errorString().toStdString();
        return nullptr;
    }
    return sim;
}
