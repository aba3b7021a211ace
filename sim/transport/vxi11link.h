#pragma once
// One VXI-11 link (create_link .. destroy_link): a session of its own, the
// replies waiting to be read, and at most one device_read waiting for them.
// A reply longer than the read's request size goes out over several reads;
// the last piece carries END.

#include "transport/session.h"

#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <optional>

namespace vxi11 {
enum Error : quint32 { NoError = 0, InvalidLink = 4, NotSupported = 8, IoTimeout = 15, Aborted = 23 };
enum Reason : quint32 { ReqCnt = 1, Chr = 2, End = 4 };
constexpr quint32 WriteEnd = 0x08;
constexpr quint32 TermCharSet = 0x80;
} // namespace vxi11

struct Vxi11ReadRequest {
    quint32 requestSize = 0;
    quint32 ioTimeoutMs = 0;
    quint32 flags = 0;
    quint32 termChar = 0;
};

class Vxi11Link : public QObject {
  public:
    // Called once per read with the encoded results: error, reason, data.
    using Respond = std::function<void(const QByteArray& results)>;

    Vxi11Link(quint32 id, Faults& faults, QObject* parent);
    quint32 id() const { return id_; }
    Session& session() { return session_; }

    void write(const QByteArray& data, bool end) { session_.receive(data, end); }
    // Answers now if a reply waits, else when one comes or the I/O time-out runs out.
    void read(const Vxi11ReadRequest& request, Respond respond);
    void clear();
    // device_abort: a waiting read ends with the abort error.
    void abortRead();

  private:
    struct WaitingRead {
        Vxi11ReadRequest request;
        Respond respond;
    };

    void replyArrived(const QByteArray& reply);
    void serveWaitingRead();
    void failWaitingRead(quint32 error);
    QByteArray takePiece(const Vxi11ReadRequest& request);

    quint32 id_;
    Session session_;
    std::deque<QByteArray> replies_;
    qsizetype offset_ = 0; // bytes of the front reply already read
    std::optional<WaitingRead> waiting_;
    QTimer timeout_;
};
