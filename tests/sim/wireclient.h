#pragma once
// A blocking TCP client for the transport tests: what arrived is kept in a
// buffer of its own, and every wait has a deadline, so a silent or broken
// simulator fails a test instead of hanging it.

#include "simprocess.h"

#include <QByteArray>
#include <QTcpSocket>
#include <memory>

class WireClient {
  public:
    bool connectTo(quint16 port, int timeoutMs = 3000);
    void send(const QByteArray& bytes);

    // Exactly n bytes, or what came before the deadline.
    QByteArray take(qsizetype n, int timeoutMs = 3000);
    // One line with its line feed, or empty when none came in time.
    QByteArray takeLine(int timeoutMs = 3000);
    // Whatever arrives within the time (for "nothing comes" checks).
    QByteArray collect(int timeoutMs);
    bool waitClosed(int timeoutMs = 3000);

  private:
    bool waitForMore(qint64 remainingMs);

    QTcpSocket socket_;
    QByteArray buffer_;
};

// The simulator built beside the tests, started with these options; the test
// fails (and the result is null) when it does not come up.
std::unique_ptr<SimProcess> startSim(const QStringList& options = {});

// The simulator's *IDN? reply in the tests that set it.
inline constexpr char kTestIdn[] = "Korva Technologies,KV7102B,KV7102T0042,00.03.03.SP1";
