#pragma once
// One HiSLIP session: the synchronous channel carries commands and replies
// (Data / DataEnd), the asynchronous one the requests clients make while
// they open a session (maximum message size, lock, remote/local, status)
// and device clear. Both channels close together.

#include "transport/hislipmessage.h"
#include "transport/session.h"

#include <QObject>
#include <QPointer>

class QTcpSocket;

class HislipSession : public QObject {
  public:
    // Lives as long as its synchronous channel.
    HislipSession(quint16 id, Faults& faults, QTcpSocket* sync);
    ~HislipSession() override;

    quint16 id() const { return id_; }
    bool attachAsync(QTcpSocket* async);

    void handleSync(const hislip::Message& message);
    void handleAsync(const hislip::Message& message);

  private:
    void sendReply(const QByteArray& reply);
    void answerAsync(quint8 type, quint8 control, quint32 parameter, QByteArrayView payload = {});
    void setClientMaximum(const QByteArray& payload);
    void drop();

    quint16 id_;
    Session session_;
    QTcpSocket* sync_;
    QPointer<QTcpSocket> async_;
    quint32 messageId_ = 0xFFFFFF00;
    quint64 clientMaximum_ = 0; // 0: the client set no limit
};

// Sends a FatalError and closes the channel.
void sendFatal(QTcpSocket* socket, quint8 code, const QByteArray& text);
