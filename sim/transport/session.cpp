#include "transport/session.h"

namespace {
// A line this long without a line feed is noise, not a command; it is thrown away.
constexpr qsizetype MaxLine = 1 << 20;
} // namespace

Session::Session(Faults& faults, QObject* parent) : QObject(parent), faults_(faults)
{
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &Session::releaseDue);
    clock_.start();
}

void Session::receive(const QByteArray& bytes, bool endOfMessage)
{
    if (dropped_) return;
    input_ += bytes;
    qsizetype lineFeed;
    while (!dropped_ && (lineFeed = input_.indexOf('\n')) >= 0) {
        QByteArray line = input_.left(lineFeed);
        input_.remove(0, lineFeed + 1);
        runLine(std::move(line));
    }
    if (endOfMessage && !dropped_) {
        runLine(std::move(input_));
        input_.clear();
    }
    if (input_.size() > MaxLine) input_.clear();
}

void Session::clear()
{
    input_.clear();
    pending_.clear();
    timer_.stop();
}

void Session::runLine(QByteArray line)
{
    if (line.endsWith('\r')) line.chop(1);
    if (line.trimmed().isEmpty()) return;
    if (faults_.options().dropAfter >= 0 && commands_ >= faults_.options().dropAfter) {
        faults_.answer(line); // logged like any command, but never answered
        dropped_ = true;
        clear();
        Q_EMIT dropRequested();
        return;
    }
    ++commands_;
    queueReply(faults_.answer(line));
}

void Session::queueReply(const QByteArray& reply)
{
    if (reply.isEmpty()) return;
    const int delay = faults_.options().delayMs;
    if (delay <= 0 && pending_.empty()) {
        Q_EMIT replyReady(reply);
        return;
    }
    pending_.push_back({clock_.elapsed() + delay, reply});
    if (!timer_.isActive()) timer_.start(int(qMax<qint64>(0, pending_.front().dueMs - clock_.elapsed())));
}

void Session::releaseDue()
{
    while (!pending_.empty() && pending_.front().dueMs <= clock_.elapsed()) {
        const QByteArray reply = std::move(pending_.front().reply);
        pending_.pop_front();
        Q_EMIT replyReady(reply);
    }
    if (!pending_.empty()) timer_.start(int(qMax<qint64>(0, pending_.front().dueMs - clock_.elapsed())));
}
