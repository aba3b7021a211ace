#pragma once
// Shared by the benchmarks: a Y-T reading of sine waves over the whole screen,
// and the main() of a benchmark program (the drawing ones bring up an offscreen
// GUI application: text needs fonts, and fonts need one).

#include "acquire/waverecord.h"

#include <QGuiApplication>
#include <QString>
#include <benchmark/benchmark.h>
#include <cmath>

inline WaveRecord SineReading(int channels, const QString& scale)
{
    WaveRecord r;
    r.HasData = r.YTMode = r.ColorMode = r.GridOn = true;
    r.Points = 600;
    r.TriggerMode = QStringLiteral("EDGE");
    r.FFTDisplayText = QStringLiteral("OFF");
    r.Parameter.s16ScrEndPos = 299;
    r.TimeScaleText = QStringLiteral("1.000ms");
    r.TimeOffsetText = QStringLiteral("0.000s");
    for (int n = 1; n <= channels; ++n) {
        r.setShowChannel(n, true);
        r.PrevShow[n] = true;
        r.ScaleText[n] = scale;
        r.OffsetText[n] = QString::number(2 - n) + QStringLiteral(".00V");
        WaveArray& wave = r.channelWave(n);
        wave.assign(2049, 0);
        for (int i = 213; i <= 812; ++i)
            wave[i] = int(50.0 * n - 20 + 18 * std::sin(i * 0.05 * n));
    }
    return r;
}

// Runs the registered benchmarks inside an application object the caller made.
inline int RunBenchmarks(int& argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

inline int GuiBenchmarkMain(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    return RunBenchmarks(argc, argv);
}
