#pragma once
// One way in to the instrument: a socket connection, a VXI-11 link, a HiSLIP
// session or the pseudo-terminal. It gathers bytes into command lines, counts
// the commands for --drop-after, and hands the replies out in order, late by
// --delay-ms. Every session shares the one instrument behind Faults.

#include "transport/faults.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <deque>

class Session : public QObject {
    Q_OBJECT
  public:
    explicit Session(Faults& faults, QObject* parent = nullptr);

    // Bytes as they arrive. endOfMessage also ends a last line that has no
    // line feed (the END of a VXI-11 write, a HiSLIP DataEnd).
    void receive(const QByteArray& bytes, bool endOfMessage = false);

    // Device clear: forgets the unfinished line and the replies not yet handed out.
    void clear();

    bool isDropped() const { return dropped_; }

  Q_SIGNALS:
    void replyReady(const QByteArray& reply);
    // The link is to be closed now (--drop-after); nothing more comes from this session.
    void dropRequested();

  private:
    struct Pending {
        qint64 dueMs;
        QByteArray reply;
    };

    void runLine(QByteArray line);
    void queueReply(const QByteArray& reply);
    void releaseDue();

    Faults& faults_;
    QByteArray input_;
    int commands_ = 0;
    bool dropped_ = false;
    std::deque<Pending> pending_;
    QTimer timer_;
    QElapsedTimer clock_;
};
