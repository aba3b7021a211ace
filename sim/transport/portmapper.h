#pragma once
// The ONC RPC portmapper (program 100000 version 2) that VXI-11 clients ask
// for the core channel's port: GETPORT over TCP (record marked) and over UDP
// (one datagram each) on the same port. It knows only the simulator's own
// services; SET and UNSET are refused.

#include "transport/tcpservice.h"

#include <QList>
#include <QUdpSocket>

namespace portmap {
constexpr quint32 Program = 100000;
constexpr quint32 Version = 2;
constexpr quint32 Tcp = 6;
constexpr quint32 Udp = 17;
} // namespace portmap

class Portmapper : public TcpService {
    Q_OBJECT
  public:
    explicit Portmapper(QObject* parent = nullptr);

    // Also binds UDP on the port TCP got.
    bool listen(const QHostAddress& address, quint16 port) override;
    void registerService(quint32 program, quint32 version, quint32 protocol, quint16 port);

    // The reply to one RPC message; empty when there is nothing to answer.
    QByteArray answer(QByteArrayView message) const;

  protected:
    void accepted(QTcpSocket* socket) override;

  private:
    struct Mapping {
        quint32 program, version, protocol, port;
    };

    QByteArray answerCall(quint32 xid, quint32 procedure, const QByteArray& args) const;
    quint32 portOf(const QByteArray& args) const;
    QByteArray dump() const;
    void readDatagrams();

    QList<Mapping> mappings_;
    QUdpSocket udp_;
};
