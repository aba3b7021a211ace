#include "cli/scpisession.h"

#include "link/visalibrary.h"

#include <algorithm>
#include <vector>

namespace {

constexpr ViUInt32 ChunkSize = 4096;
constexpr ViUInt16 AsrlEndNone = 0;
constexpr ViUInt16 AsrlEndTermChar = 2;

bool failed(ViStatus status)
{
    return status < VI_SUCCESS;
}

} // namespace

ScpiResourceManager::ScpiResourceManager()
{
    if (failed(Visa().openDefaultRM(&manager_))) manager_ = VI_NULL;
}

ScpiResourceManager::~ScpiResourceManager()
{
    if (manager_ != VI_NULL) Visa().close(manager_);
}

QStringList ScpiResourceManager::find(const char* pattern) const
{
    QStringList names;
    char description[VI_FIND_BUFLEN] = {};
    ViFindList list = VI_NULL;
    ViUInt32 count = 0;
    if (failed(Visa().findRsrc(manager_, pattern, &list, &count, description))) return names;
    names.append(QString::fromLatin1(description));
    for (ViUInt32 i = 1; i < count; ++i) {
        std::fill(std::begin(description), std::end(description), '\0');
        if (failed(Visa().findNext(list, description))) break;
        names.append(QString::fromLatin1(description));
    }
    Visa().close(list);
    return names;
}

ScpiSession::ScpiSession(const ScpiResourceManager& manager, const QString& resource, int timeoutMs, int baud)
    : serial_(resource.startsWith(QLatin1String("ASRL"), Qt::CaseInsensitive))
{
    const QByteArray name = resource.toLatin1();
    openStatus_ = Visa().open(manager.handle(), name.constData(), VI_NO_LOCK, 0, &session_);
    if (failed(openStatus_)) {
        session_ = VI_NULL;
        return;
    }
    Visa().setAttribute(session_, VI_ATTR_TMO_VALUE, ViUInt32(timeoutMs));
    Visa().setAttribute(session_, VI_ATTR_TERMCHAR, '\n');
    if (serial_) Visa().setAttribute(session_, VI_ATTR_ASRL_BAUD, ViUInt32(baud));
    endReadsAtLineFeed(true);
}

ScpiSession::~ScpiSession()
{
    if (session_ != VI_NULL) Visa().close(session_);
}

bool ScpiSession::send(const QByteArray& command)
{
    const QByteArray line = command + '\n';
    ViUInt32 written = 0;
    const auto* bytes = reinterpret_cast<const ViByte*>(line.constData());
    return !failed(Visa().write(session_, bytes, ViUInt32(line.size()), &written)) &&
           written == ViUInt32(line.size());
}

// Socket and serial replies carry no END: the line feed ends them. Inside a
// block it is only a data byte.
void ScpiSession::endReadsAtLineFeed(bool on)
{
    Visa().setAttribute(session_, VI_ATTR_TERMCHAR_EN, on ? VI_TRUE : VI_FALSE);
    if (serial_) Visa().setAttribute(session_, VI_ATTR_ASRL_END_IN, on ? AsrlEndTermChar : AsrlEndNone);
}

ViStatus ScpiSession::readInto(QByteArray& into, ViUInt32 size)
{
    std::vector<ViByte> buffer(size);
    ViUInt32 count = 0;
    const ViStatus status = Visa().read(session_, buffer.data(), size, &count);
    into.append(reinterpret_cast<const char*>(buffer.data()), qsizetype(std::min(count, size)));
    return status;
}

ViStatus ScpiSession::readExactly(QByteArray& into, qint64 size)
{
    const qint64 goal = into.size() + size;
    ViStatus status = VI_SUCCESS_MAX_CNT;
    while (into.size() < goal && status == VI_SUCCESS_MAX_CNT)
        status = readInto(into, ViUInt32(std::min<qint64>(goal - into.size(), ChunkSize)));
    return status; // short of the size when the reply ended first
}

ScpiReply ScpiSession::read()
{
    ScpiReply reply;
    QByteArray head;
    ViStatus status = readExactly(head, 2);
    if (failed(status) && head.isEmpty()) return reply;
    const bool definite = head.size() == 2 && head[0] == '#' && head[1] >= '1' && head[1] <= '9';
    if (definite && status == VI_SUCCESS_MAX_CNT) {
        QByteArray digits;
        status = readExactly(digits, head[1] - '0');
        bool ok = false;
        const qint64 length = digits.toLongLong(&ok);
        if (failed(status) || !ok || digits.size() != head[1] - '0') return reply;
        endReadsAtLineFeed(false);
        status = length > 0 ? readExactly(reply.bytes, length) : VI_SUCCESS_MAX_CNT;
        endReadsAtLineFeed(true);
        if (failed(status) || reply.bytes.size() != length) return reply;
        QByteArray rest; // the line feed after the block
        if (status == VI_SUCCESS_MAX_CNT) readInto(rest, ChunkSize);
        reply.block = true;
        reply.answered = true;
        return reply;
    }
    reply.bytes = head;
    while (status == VI_SUCCESS_MAX_CNT)
        status = readInto(reply.bytes, ChunkSize);
    while (reply.bytes.endsWith('\n') || reply.bytes.endsWith('\r'))
        reply.bytes.chop(1);
    reply.answered = !failed(status) || !reply.bytes.isEmpty();
    return reply;
}

bool IsQuery(const QByteArray& command)
{
    return command.contains('?');
}
