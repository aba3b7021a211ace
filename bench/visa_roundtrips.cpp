// Round trips through our own VISA layer against a running kv7200b-sim: write
// "*IDN?" and read the reply in 256-byte reads, as the program's AskCmd does,
// over each backend; and one waveform block per iteration. Time per iteration
// is the latency of one exchange; items per second the round trips.

#include "benchsupport.h"
#include "simprocess.h"
#include "visa/visa.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

enum Backend { Socket, Vxi11, Hislip, Serial };

// One simulator for the whole run, and one open session per backend.
struct Peer {
    SimProcess sim{SELVANE_SIM_PATH};
    ViSession manager = VI_NULL;
    ViSession sessions[4] = {};
    bool ready = false;

    Peer()
    {
        ::setenv("SELVANE_VISA", "builtin", 1);
        if (!sim.start() || viOpenDefaultRM(&manager) != VI_SUCCESS) return;
        ::setenv("SELVANE_PORTMAPPER_PORT", std::to_string(sim.port("portmapper")).c_str(), 1);
        ready = true;
        for (int backend = Socket; backend <= Serial; ++backend)
            ready = ready && open(Backend(backend));
    }
    ~Peer() { viClose(manager); }

    bool open(Backend backend)
    {
        const std::string name = resourceName(backend);
        ViSession& session = sessions[backend];
        return viOpen(manager, name.c_str(), VI_NO_LOCK, 0, &session) == VI_SUCCESS &&
               viSetAttribute(session, VI_ATTR_TMO_VALUE, 5000) == VI_SUCCESS;
    }

    std::string resourceName(Backend backend) const
    {
        switch (backend) {
        case Socket: return "TCPIP0::127.0.0.1::" + std::to_string(sim.port("socket")) + "::SOCKET";
        case Vxi11: return "TCPIP0::127.0.0.1::inst0::INSTR";
        case Hislip: return "TCPIP0::127.0.0.1::hislip0," + std::to_string(sim.port("hislip")) + "::INSTR";
        case Serial: return "ASRL" + sim.ptyPath().toStdString() + "::INSTR";
        }
        return {};
    }

    // Writes the query and reads until a read ends short of its count; the bytes read, or -1.
    long ask(Backend backend, const std::string& query, ViUInt32 chunk)
    {
        static ViByte buffer[100000];
        ViUInt32 count = 0;
        if (viWrite(sessions[backend], reinterpret_cast<const ViByte*>(query.data()), ViUInt32(query.size()),
                    &count) != VI_SUCCESS)
            return -1;
        long total = 0;
        ViStatus status = VI_SUCCESS_MAX_CNT;
        while (status == VI_SUCCESS_MAX_CNT) {
            status = viRead(sessions[backend], buffer, chunk, &count);
            total += count;
        }
        return status == VI_SUCCESS ? total : -1;
    }
};

std::unique_ptr<Peer> thePeer;

Peer& peer()
{
    if (!thePeer) thePeer = std::make_unique<Peer>();
    return *thePeer;
}

void BM_IdnRoundTrip(benchmark::State& state, Backend backend)
{
    if (!peer().ready) return state.SkipWithError("the simulator or a session did not come up");
    for (auto _ : state)
        if (peer().ask(backend, "*IDN?\n", 256) <= 0) return state.SkipWithError("no reply");
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(BM_IdnRoundTrip, socket, Socket)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(BM_IdnRoundTrip, vxi11, Vxi11)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(BM_IdnRoundTrip, hislip, Hislip)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(BM_IdnRoundTrip, asrl, Serial)->Unit(benchmark::kMicrosecond)->UseRealTime();

// A screen's worth of samples, read at once into the program's 6400-byte buffer.
void BM_ScreenDataBlock(benchmark::State& state, Backend backend)
{
    if (!peer().ready) return state.SkipWithError("the simulator or a session did not come up");
    long bytes = 0;
    for (auto _ : state) {
        const long got = peer().ask(backend, ":WAVEFORM:SCREENDATA? CHANNEL1\n", 6400);
        if (got <= 0) return state.SkipWithError("no block");
        bytes += got;
    }
    state.SetItemsProcessed(state.iterations());
    state.SetBytesProcessed(bytes);
}
BENCHMARK_CAPTURE(BM_ScreenDataBlock, socket, Socket)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(BM_ScreenDataBlock, vxi11, Vxi11)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK_CAPTURE(BM_ScreenDataBlock, hislip, Hislip)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int status = RunBenchmarks(argc, argv);
    thePeer.reset(); // the simulator stops before the application does
    return status;
}
