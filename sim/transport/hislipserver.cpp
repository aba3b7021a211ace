#include "transport/hislipserver.h"

#include "transport/hislipsession.h"

#include <QPointer>
#include <QTcpSocket>

using namespace hislip;

namespace {
constexpr quint32 ProtocolVersion = 0x0100; // 1.0
constexpr quint32 VendorId = ('K' << 8) | 'V';

// One TCP connection: reads its messages and routes them to its session once
// the first message has said which channel it is.
class HislipConnection : public QObject {
  public:
    HislipConnection(HislipServer& server, QTcpSocket* socket)
        : QObject(socket), server_(server), socket_(socket)
    {
        connect(socket, &QTcpSocket::readyRead, this, &HislipConnection::readMessages);
    }

  private:
    void readMessages()
    {
        reader_.append(socket_->readAll());
        while (socket_->isOpen()) {
            const std::optional<Message> message = reader_.next();
            if (!message) break;
            route(*message);
        }
        if (reader_.failed() && socket_->isOpen())
            sendFatal(socket_, PoorlyFormedHeader, "poorly formed message header");
    }

    void route(const Message& message)
    {
        if (!started_) return start(message);
        if (!session_) return sendFatal(socket_, NoChannelPair, "the session is closed");
        if (synchronous_)
            session_->handleSync(message);
        else
            session_->handleAsync(message);
    }

    void start(const Message& message)
    {
        if (message.type == Initialize) return startSync();
        if (message.type != AsyncInitialize)
            return sendFatal(socket_, InvalidInitialization, "expected Initialize or AsyncInitialize");
        session_ = server_.session(quint16(message.parameter));
        if (!session_ || !session_->attachAsync(socket_))
            return sendFatal(socket_, InvalidInitialization, "no such session");
        started_ = true;
        socket_->write(encode(AsyncInitializeResponse, 0, VendorId));
    }

    void startSync()
    {
        session_ = server_.openSession(socket_);
        started_ = synchronous_ = true;
        socket_->write(encode(InitializeResponse, 0, ProtocolVersion << 16 | session_->id()));
    }

    HislipServer& server_;
    QTcpSocket* socket_;
    Reader reader_;
    QPointer<HislipSession> session_;
    bool started_ = false;
    bool synchronous_ = false;
};
} // namespace

HislipServer::HislipServer(Faults& faults, QObject* parent) : TcpService(parent), faults_(faults) {}

HislipSession* HislipServer::openSession(QTcpSocket* sync)
{
    quint16 id = nextSessionId_++;
    while (id == 0 || sessions_.contains(id))
        id = nextSessionId_++;
    auto* session = new HislipSession(id, faults_, sync);
    sessions_.insert(id, session);
    connect(session, &QObject::destroyed, this, [this, id] { sessions_.remove(id); });
    return session;
}

void HislipServer::accepted(QTcpSocket* socket)
{
    new HislipConnection(*this, socket);
}
