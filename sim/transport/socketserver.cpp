#include "transport/socketserver.h"

#include "transport/session.h"

#include <QTcpSocket>

SocketServer::SocketServer(Faults& faults, QObject* parent) : TcpService(parent), faults_(faults) {}

void SocketServer::accepted(QTcpSocket* socket)
{
    auto* session = new Session(faults_, socket);
    connect(socket, &QTcpSocket::readyRead, session, [=] { session->receive(socket->readAll()); });
    connect(session, &Session::replyReady, socket, [=](const QByteArray& reply) { socket->write(reply); });
    connect(session, &Session::dropRequested, socket, &QTcpSocket::disconnectFromHost);
}
