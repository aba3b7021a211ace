#include "transport/vxi11link.h"

#include "transport/oncrpc.h"

namespace {
QByteArray readResults(quint32 error, quint32 reason, QByteArrayView data)
{
    return XdrWriter().u32(error).u32(reason).opaque(data).data();
}
} // namespace

Vxi11Link::Vxi11Link(quint32 id, Faults& faults, QObject* parent)
    : QObject(parent), id_(id), session_(faults, this)
{
    timeout_.setSingleShot(true);
    connect(&timeout_, &QTimer::timeout, this, [this] { failWaitingRead(vxi11::IoTimeout); });
    connect(&session_, &Session::replyReady, this, &Vxi11Link::replyArrived);
}

void Vxi11Link::read(const Vxi11ReadRequest& request, Respond respond)
{
    failWaitingRead(vxi11::IoTimeout); // a client never has two reads out; if it does, the older one gives up
    waiting_ = WaitingRead{request, std::move(respond)};
    if (!replies_.empty())
        serveWaitingRead();
    else if (request.ioTimeoutMs == 0)
        failWaitingRead(vxi11::IoTimeout);
    else
        timeout_.start(int(qMin<quint32>(request.ioTimeoutMs, 24 * 3600 * 1000)));
}

void Vxi11Link::clear()
{
    session_.clear();
    replies_.clear();
    offset_ = 0;
}

void Vxi11Link::abortRead()
{
    failWaitingRead(vxi11::Aborted);
}

void Vxi11Link::replyArrived(const QByteArray& reply)
{
    replies_.push_back(reply);
    if (waiting_) serveWaitingRead();
}

void Vxi11Link::serveWaitingRead()
{
    timeout_.stop();
    WaitingRead read = std::move(*waiting_);
    waiting_.reset();
    const QByteArray& front = replies_.front();
    const QByteArray piece = takePiece(read.request);
    quint32 reason = 0;
    const bool whole = offset_ + piece.size() == front.size();
    if (whole)
        reason |= vxi11::End;
    else if (quint32(piece.size()) == read.request.requestSize)
        reason |= vxi11::ReqCnt;
    if ((read.request.flags & vxi11::TermCharSet) && piece.endsWith(char(read.request.termChar)))
        reason |= vxi11::Chr;
    offset_ += piece.size();
    if (whole) {
        replies_.pop_front();
        offset_ = 0;
    }
    read.respond(readResults(vxi11::NoError, reason, piece));
}

// The next bytes of the front reply: at most the request size, and up to the
// term character when the client asked for one.
QByteArray Vxi11Link::takePiece(const Vxi11ReadRequest& request)
{
    const QByteArray& front = replies_.front();
    qsizetype size = qMin<qsizetype>(front.size() - offset_, request.requestSize);
    if (request.flags & vxi11::TermCharSet) {
        const qsizetype at = front.indexOf(char(request.termChar), offset_);
        if (at >= 0 && at < offset_ + size) size = at - offset_ + 1;
    }
    return front.mid(offset_, size);
}

void Vxi11Link::failWaitingRead(quint32 error)
{
    if (!waiting_) return;
    timeout_.stop();
    Respond respond = std::move(waiting_->respond);
    waiting_.reset();
    respond(readResults(error, 0, {}));
}
