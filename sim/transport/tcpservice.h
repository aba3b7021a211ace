#pragma once
// What every TCP transport of the simulator shares: listening on a loopback
// address and handing each new connection, with Nagle off so that small
// replies leave at once, to the transport.

#include <QHostAddress>
#include <QObject>
#include <QTcpServer>

class QTcpSocket;

class TcpService : public QObject {
    Q_OBJECT
  public:
    explicit TcpService(QObject* parent = nullptr);

    // Port 0 picks a free port.
    virtual bool listen(const QHostAddress& address, quint16 port);
    quint16 port() const { return server_.serverPort(); }
    QHostAddress address() const { return server_.serverAddress(); }
    QString errorString() const { return server_.errorString(); }

  protected:
    // The new connection belongs to the transport from here on.
    virtual void accepted(QTcpSocket* socket) = 0;

  private:
    void acceptPending();

    QTcpServer server_;
};
