// The link's own routines against a running kv7200b-sim: AskCmd("*IDN?") round
// trips per second over SOCKET, VXI-11 and HiSLIP through our VISA layer, and
// the bytes per second of a screen block read by UsbReadScreen. WriteCmd's
// 100 ms pause is not waited for here (the recording platform only counts it),
// so the block figure is the transport's, not the program's pacing. The virtual
// panel's screen pass (ReadDisplayData and the picture made from its bytes) is
// measured both ways: with the pause really waited, as the panel runs, and
// without it, the part of a pass that is not the mandated wait.

#include "benchsupport.h"
#include "simprocess.h"

#include "acquire/blockdecode.h"
#include "link/connection.h"
#include "link/linkcommands.h"
#include "link/linkstate.h"
#include "link/visablocks.h"
#include "link/visaopen.h"
#include "panel/screenpicture.h"
#include "platform/testplatform.h"
#include "state/programstate.h"
#include "visa/visaconfig.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>
#include <memory>

namespace {

enum Transport : int { Socket, Vxi11, Hislip };

struct Peer {
    SimProcess sim{SELVANE_SIM_PATH};
    bool started = false;
    Peer() { started = sim.start({"--pty", "off"}); }

    QString resource(int transport) const
    {
        const QString host = QStringLiteral("TCPIP0::127.0.0.1::");
        switch (transport) {
        case Socket: return host + QString::number(sim.port("socket")) + "::SOCKET";
        case Vxi11: return host + "inst0::INSTR";
        default: return host + "hislip0," + QString::number(sim.port("hislip")) + "::INSTR";
        }
    }
};

std::unique_ptr<Peer> thePeer;

// Connects with ConnectDevice, the socket as a resource chosen beforehand.
bool connectOver(int transport)
{
    if (!thePeer) thePeer = std::make_unique<Peer>();
    if (!thePeer->started) return false;
    CloseVisaRM();
    ResetProgramState();
    qputenv("SELVANE_PORTMAPPER_PORT", QByteArray::number(thePeer->sim.port("portmapper")));
    const QString name = thePeer->resource(transport);
    selvaneVisaSetConfiguredResources({name.toStdString(), thePeer->resource(Vxi11).toStdString()});
    ResourceName = name;
    ResourceChosen = true;
    OpenVisaRM();
    ConnectDevice();
    return Connected;
}

void BM_AskIdn(benchmark::State& state)
{
    if (!connectOver(int(state.range(0)))) return state.SkipWithError("could not connect");
    for (auto _ : state) {
        if (AskCmd("*IDN?").isEmpty()) return state.SkipWithError("no reply");
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_AskIdn)
    ->ArgName("socket0_vxi1_hislip2")
    ->Arg(Socket)
    ->Arg(Vxi11)
    ->Arg(Hislip)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();

void BM_ScreenBlock(benchmark::State& state)
{
    if (!connectOver(int(state.range(0)))) return state.SkipWithError("could not connect");
    int64_t bytes = 0;
    for (auto _ : state) {
        WriteCmd(":WAVEFORM:SCREENDATA? CHANNEL1");
        int samples = 0;
        UsbReadScreen(samples);
        if (samples <= 0) return state.SkipWithError("no block");
        bytes += samples;
    }
    state.SetBytesProcessed(bytes);
    state.counters["samples"] = double(bytes) / double(state.iterations());
}
BENCHMARK(BM_ScreenBlock)
    ->ArgName("socket0_vxi1_hislip2")
    ->Arg(Socket)
    ->Arg(Vxi11)
    ->Arg(Hislip)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();

void BM_ScreenPass(benchmark::State& state)
{
    if (!connectOver(int(state.range(0)))) return state.SkipWithError("could not connect");
    auto& recorder = static_cast<TestPlatform&>(platform());
    recorder.realSleep = state.range(1) != 0;
    for (auto _ : state) {
        QByteArray screen;
        ReadDisplayData(screen);
        if (ScreenImage(screen).isNull()) return state.SkipWithError("no picture");
    }
    recorder.realSleep = false;
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ScreenPass)
    ->ArgNames({"socket0_hislip2", "waits"})
    ->ArgsProduct({{Socket, Hislip}, {1, 0}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    qputenv("SELVANE_VISA", "builtin");
    ScopedTestPlatform platform;
    const int status = RunBenchmarks(argc, argv);
    CloseVisaRM();
    thePeer.reset();
    return status;
}
