#pragma once
// The faults the simulator can be told to show, so that tests reach every
// failure path of the program: silence, noise, short blocks, a dropped link,
// late replies. Every transport hands its command lines to one Faults
// object, which logs them and asks the instrument.

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QRandomGenerator>
#include <QString>
#include <functional>

struct FaultOptions {
    QList<QByteArray> silent; // queries never answered: a whole line or its header
    bool garbage = false;     // every reply is replaced by noise
    bool shortBlocks = false; // a "#" block reply loses half its data
    int dropAfter = -1;       // a link closes when command dropAfter + 1 arrives; -1 never
    int delayMs = 0;          // replies leave this much later
    QString logPath;          // every command with a monotonic time stamp; empty for none
};

class Faults {
  public:
    using Responder = std::function<QByteArray(const QByteArray& line)>;

    Faults(Responder responder, FaultOptions options);
    const FaultOptions& options() const { return options_; }

    // Opens the command log, if one was asked for. False (with the reason) if it can't be written.
    bool openLog(QString* error);

    // Logs one command line and returns the reply as the faulty instrument sends it.
    QByteArray answer(const QByteArray& line);

  private:
    void log(const QByteArray& line);
    bool isSilenced(const QByteArray& line) const;
    QByteArray noise(qsizetype size);

    Responder responder_;
    FaultOptions options_;
    QFile log_;
    QRandomGenerator random_{7200};
};

// The header of a command line: what comes before the first blank, upper case.
QByteArray commandHeader(const QByteArray& line);

// The size of "#", the digit n and the n length digits when the reply is a
// definite-length block; 0 for anything else.
qsizetype blockHeaderSize(const QByteArray& reply);

// A definite-length block that keeps its header but loses the second half of
// its data (the trailing line feed stays). Anything else comes back unchanged.
QByteArray shortenBlock(const QByteArray& reply);

// Microseconds on the monotonic clock, as the command log writes them.
qint64 monotonicMicroseconds();
