#pragma once
// The link's integration tests: a kv7200b-sim child process that logs every
// command, and the link aimed at it over one of its transports with the
// program's own routines and our VISA layer.

#include "simprocess.h"

#include "link/timeouttimer.h"
#include "platform/testplatform.h"

#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>
#include <string>

enum class LinkTransport { Socket, Vxi11, Hislip, Serial };

std::string transportName(LinkTransport transport);

// The identity the simulator gives unless a test asks for another.
inline constexpr char SupportedIdentity[] = "Korva Technologies,KV7204B,KV72040007,00.03.03.SP1";

class SimLink {
  public:
    explicit SimLink(const QStringList& options = {});

    bool started() const { return started_; }
    QString errorString() const { return sim_.errorString(); }
    SimProcess& sim() { return sim_; }

    // Sets the transport, the resource and what our VISA layer lists, so that
    // ConnectDevice reaches the simulator the way it was set up.
    void aim(LinkTransport transport);
    // The commands the simulator received, in order.
    QStringList loggedCommands() const;
    // The same with the time each arrived, in microseconds on the monotonic clock.
    QList<QPair<qint64, QString>> loggedEntries() const;
    // Waits up to timeoutMs for the log to hold `count` copies of command.
    bool waitForLogged(const QString& command, int count, int timeoutMs = 3000) const;

  private:
    QTemporaryDir dir_;
    SimProcess sim_;
    bool started_ = false;
};

// A fresh program state, a recording platform, our own VISA layer and the
// silence timer, for every test.
class SimLinkTest : public ::testing::Test {
  protected:
    SimLinkTest();
    ~SimLinkTest() override;

    QStringList boxTexts() const;

    ScopedTestPlatform platform;
    TimeOutTimer ticks;
};
