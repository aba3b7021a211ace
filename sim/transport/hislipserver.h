#pragma once
// The HiSLIP server (port 4880 by convention). A connection becomes a
// session's synchronous channel with Initialize, or joins a session as its
// asynchronous channel with AsyncInitialize.

#include "transport/tcpservice.h"

#include <QHash>

class Faults;
class HislipSession;

class HislipServer : public TcpService {
    Q_OBJECT
  public:
    explicit HislipServer(Faults& faults, QObject* parent = nullptr);

    HislipSession* openSession(QTcpSocket* sync);
    HislipSession* session(quint16 id) const { return sessions_.value(id); }

  protected:
    void accepted(QTcpSocket* socket) override;

  private:
    Faults& faults_;
    QHash<quint16, HislipSession*> sessions_;
    quint16 nextSessionId_ = 1;
};
