#pragma once
// The raw SCPI socket (port 5025 by convention): commands and replies as
// bytes on one TCP stream, each command ended by a line feed.

#include "transport/tcpservice.h"

class Faults;

class SocketServer : public TcpService {
    Q_OBJECT
  public:
    explicit SocketServer(Faults& faults, QObject* parent = nullptr);

  protected:
    void accepted(QTcpSocket* socket) override;

  private:
    Faults& faults_;
};
