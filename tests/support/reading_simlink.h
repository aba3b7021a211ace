#pragma once
// The readings against kv7200b-sim: the link's fixture (a logging simulator of
// the test's own, our VISA layer, the program's link aimed at it), plus a second
// plain socket that asks the simulator directly, to compare what a reading
// stored with what the instrument sends.

#include "link_simlink.h"

#include <QByteArray>
#include <memory>
#include <vector>

class SimReadingTest : public SimLinkTest {
  protected:
    SimReadingTest();
    ~SimReadingTest() override;

    // Starts the simulator; false (with a test failure) when it does not come up.
    bool startSim(const QStringList& options = {});
    // The two resources the command line needs for the simulator's raw socket: the
    // socket itself and an INSTR resource, so that the find lists one.
    QStringList socketResources() const;
    // Connects the program's link over the raw socket, or over the pty.
    bool connectOverSocket();
    bool connectOverSerial();

    // Asks the simulator directly: a text reply without its line feed, or the
    // data of a "#" block.
    QByteArray askText(const QByteArray& line);
    QByteArray askBlock(const QByteArray& line);
    // Sends commands directly (no reply).
    void send(const QByteArray& line);

    std::unique_ptr<SimLink> link;
    SimProcess* sim = nullptr;
};

// Codes of a block as numbers, sample i (from 1) at index i - 1.
std::vector<int> CodesOf(const QByteArray& block);
