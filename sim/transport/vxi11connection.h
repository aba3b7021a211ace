#pragma once
// One TCP connection to the VXI-11 port: decodes its RPC records and answers
// each call. The links it creates live as long as the connection.

#include "transport/oncrpc.h"

#include <QObject>

class QTcpSocket;
class Vxi11Link;
class Vxi11Server;

class Vxi11Connection : public QObject {
  public:
    Vxi11Connection(Vxi11Server& server, QTcpSocket* socket);

  private:
    void readRecords();
    void handleMessage(const QByteArray& message);
    void handleCall(const RpcCall& call);
    void handleCore(const RpcCall& call);
    void handleAbort(const RpcCall& call);
    void send(quint32 xid, const QByteArray& results);
    void sendError(quint32 xid, quint32 error);
    void refuse(quint32 xid, RpcAccept status);

    void createLink(const RpcCall& call);
    void deviceWrite(const RpcCall& call);
    void deviceRead(const RpcCall& call);
    void deviceReadStb(const RpcCall& call);
    void deviceClear(const RpcCall& call);
    void destroyLink(const RpcCall& call);
    void acceptCall(const RpcCall& call);
    void drop();

    Vxi11Link* ownLink(quint32 id) const;

    Vxi11Server& server_;
    QTcpSocket* socket_;
    RecordReader records_;
};
