#include "transport/tcpservice.h"

#include <QTcpSocket>

TcpService::TcpService(QObject* parent) : QObject(parent)
{
    connect(&server_, &QTcpServer::newConnection, this, &TcpService::acceptPending);
}

bool TcpService::listen(const QHostAddress& address, quint16 port)
{
    return server_.listen(address, port);
}

void TcpService::acceptPending()
{
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        socket->setParent(this);
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        accepted(socket);
    }
}
