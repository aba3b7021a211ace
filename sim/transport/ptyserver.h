#pragma once
// The RS232 side: a pseudo-terminal whose slave end stands for the
// instrument's serial port. Commands and text replies pass as they are. The
// program never asks for a block over RS232; should a block reply come, it
// goes out in the serial block form the program's block receiver reads: the
// data length as four bytes, little-endian, then the data, no line feed.

#include "transport/session.h"

#include <QObject>
#include <QString>

class QSocketNotifier;

class PtyServer : public QObject {
  public:
    explicit PtyServer(Faults& faults, QObject* parent = nullptr);
    ~PtyServer() override;

    // Creates the pseudo-terminal, raw, non-blocking. False with the reason on failure.
    bool open(QString* error);
    QString slavePath() const { return slavePath_; }

  private:
    void readMaster();
    void send(const QByteArray& reply);
    void writePending();
    void close();

    Session session_;
    int master_ = -1;
    int slave_ = -1; // held open so the master never sees a hang-up between clients
    QString slavePath_;
    QSocketNotifier* readNotifier_ = nullptr;
    QSocketNotifier* writeNotifier_ = nullptr;
    QByteArray output_;
};

// A reply as it goes over the serial link: text unchanged, a "#" block as
// length (4 bytes, little-endian) and data.
QByteArray serialForm(const QByteArray& reply);
