#include "transport/faults.h"

#include <chrono>

Faults::Faults(Responder responder, FaultOptions options)
    : responder_(std::move(responder)), options_(std::move(options))
{
    for (QByteArray& query : options_.silent)
        query = query.trimmed().toUpper();
}

bool Faults::openLog(QString* error)
{
    if (options_.logPath.isEmpty()) return true;
    log_.setFileName(options_.logPath);
    if (log_.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) return true;
    *error = log_.errorString();
    return false;
}

QByteArray Faults::answer(const QByteArray& line)
{
    log(line);
    if (isSilenced(line)) return {};
    QByteArray reply = responder_(line);
    if (reply.isEmpty()) return reply;
    if (options_.shortBlocks) reply = shortenBlock(reply);
    if (options_.garbage) reply = noise(reply.size() - 1) + '\n';
    return reply;
}

void Faults::log(const QByteArray& line)
{
    if (log_.isOpen()) log_.write(QByteArray::number(monotonicMicroseconds()) + ' ' + line + '\n');
}

bool Faults::isSilenced(const QByteArray& line) const
{
    const QByteArray whole = line.trimmed().toUpper();
    const QByteArray header = commandHeader(line);
    for (const QByteArray& query : options_.silent) {
        if (query == whole || query == header) return true;
    }
    return false;
}

// Printable bytes, never a line feed, so a text read still ends where the reply would have.
QByteArray Faults::noise(qsizetype size)
{
    QByteArray bytes(qMax<qsizetype>(size, 1), Qt::Uninitialized);
    for (char& c : bytes)
        c = char(random_.bounded(0x21, 0x7F));
    return bytes;
}

QByteArray commandHeader(const QByteArray& line)
{
    const QByteArray trimmed = line.trimmed();
    const qsizetype blank = trimmed.indexOf(' ');
    return (blank < 0 ? trimmed : trimmed.left(blank)).toUpper();
}

qsizetype blockHeaderSize(const QByteArray& reply)
{
    if (reply.size() < 2 || reply[0] != '#' || reply[1] < '1' || reply[1] > '9') return 0;
    return qMin<qsizetype>(2 + (reply[1] - '0'), reply.size());
}

QByteArray shortenBlock(const QByteArray& reply)
{
    const qsizetype headerSize = blockHeaderSize(reply);
    if (headerSize == 0) return reply;
    const bool endsInLineFeed = reply.endsWith('\n');
    const qsizetype dataSize = reply.size() - headerSize - (endsInLineFeed ? 1 : 0);
    if (dataSize <= 0) return reply;
    QByteArray shorter = reply.left(headerSize + dataSize / 2);
    return endsInLineFeed ? shorter + '\n' : shorter;
}

qint64 monotonicMicroseconds()
{
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}
