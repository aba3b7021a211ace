#include "transport/vxi11server.h"

#include "transport/vxi11connection.h"
#include "transport/vxi11link.h"

#include <QTcpSocket>

Vxi11Server::Vxi11Server(Faults& faults, QObject* parent) : TcpService(parent), faults_(faults) {}

Vxi11Link* Vxi11Server::createLink(QObject* owner)
{
    const quint32 id = nextLinkId_++;
    auto* link = new Vxi11Link(id, faults_, owner);
    links_.insert(id, link);
    connect(link, &QObject::destroyed, this, [this, id] { links_.remove(id); });
    return link;
}

void Vxi11Server::accepted(QTcpSocket* socket)
{
    new Vxi11Connection(*this, socket);
}
