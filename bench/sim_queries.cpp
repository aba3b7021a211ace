// Query round trips against a running kv7200b-sim over its raw socket: how
// many *IDN? per second one connection gets (wall-clock), and how fast a waveform block
// comes. Time per iteration is the latency of one query.

#include "benchsupport.h"
#include "simprocess.h"

#include <QCoreApplication>
#include <QTcpSocket>
#include <benchmark/benchmark.h>
#include <memory>

namespace {

constexpr int TimeoutMs = 5000;

// One simulator and one connection for the whole run.
struct Peer {
    SimProcess sim{SELVANE_SIM_PATH};
    QTcpSocket socket;
    bool ready = false;

    Peer()
    {
        if (!sim.start({"--pty", "off", "--portmapper-port", "off"})) return;
        socket.connectToHost("127.0.0.1", sim.port("socket"));
        socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        ready = socket.waitForConnected(TimeoutMs);
    }

    bool waitFor(qint64 count)
    {
        while (socket.bytesAvailable() < count) {
            if (!socket.waitForReadyRead(TimeoutMs)) return false;
        }
        return true;
    }

    // Sends the query and reads its one-line reply; false when none came.
    bool askLine(const QByteArray& query)
    {
        socket.write(query);
        while (!socket.canReadLine()) {
            if (!socket.waitForReadyRead(TimeoutMs)) return false;
        }
        socket.readLine();
        return true;
    }

    // Sends the query and reads the "#" block it answers with; the byte count, or -1.
    qint64 askBlock(const QByteArray& query)
    {
        socket.write(query);
        if (!waitFor(2) || socket.peek(1) != "#") return -1;
        const int digits = socket.peek(2).at(1) - '0';
        if (!waitFor(2 + digits)) return -1;
        const qint64 total = 2 + digits + socket.peek(2 + digits).mid(2).toLongLong() + 1;
        if (!waitFor(total)) return -1;
        return socket.read(total).size();
    }
};

std::unique_ptr<Peer> thePeer;

Peer& peer()
{
    if (!thePeer) thePeer = std::make_unique<Peer>();
    return *thePeer;
}

void BM_IdnRoundTrip(benchmark::State& state)
{
    if (!peer().ready) return state.SkipWithError("the simulator did not start");
    for (auto _ : state) {
        if (!peer().askLine("*IDN?\n")) return state.SkipWithError("no reply");
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_IdnRoundTrip)->Unit(benchmark::kMicrosecond)->UseRealTime();

// A screen block: its header tells the length, and the line feed after the data ends it.
void BM_ScreenBlock(benchmark::State& state)
{
    if (!peer().ready) return state.SkipWithError("the simulator did not start");
    qint64 bytes = 0;
    for (auto _ : state) {
        const qint64 got = peer().askBlock(":WAVEFORM:SCREENDATA? CHANNEL1\n");
        if (got < 0) return state.SkipWithError("no block");
        bytes += got;
    }
    state.SetItemsProcessed(state.iterations());
    state.SetBytesProcessed(bytes);
}
BENCHMARK(BM_ScreenBlock)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int status = RunBenchmarks(argc, argv);
    thePeer.reset(); // the simulator stops before the application does
    return status;
}
