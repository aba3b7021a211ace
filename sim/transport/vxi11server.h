#pragma once
// The VXI-11 core channel: ONC RPC over TCP with record marking. Serves
// create_link, device_write, device_read, device_clear and destroy_link, and
// takes the other core calls standard clients make (lock, unlock, remote,
// local, read status byte) without fuss. The abort channel's device_abort is
// served on the same port, which create_link reports as the abort port.

#include "transport/tcpservice.h"

#include <QHash>

class Faults;
class Vxi11Link;

namespace vxi11 {
constexpr quint32 CoreProgram = 0x0607AF;
constexpr quint32 AbortProgram = 0x0607B0;
constexpr quint32 Version = 1;
constexpr quint32 MaxRecvSize = 1 << 20;
} // namespace vxi11

class Vxi11Server : public TcpService {
    Q_OBJECT
  public:
    explicit Vxi11Server(Faults& faults, QObject* parent = nullptr);

    Vxi11Link* createLink(QObject* owner);
    Vxi11Link* link(quint32 id) const { return links_.value(id); }

  protected:
    void accepted(QTcpSocket* socket) override;

  private:
    Faults& faults_;
    QHash<quint32, Vxi11Link*> links_;
    quint32 nextLinkId_ = 1;
};
