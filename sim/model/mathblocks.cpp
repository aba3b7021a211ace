#include "model/mathblocks.h"

#include "model/signalmodel.h"
#include "screen/screencodes.h"

#include <QVector>
#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace {

double displayedVolts(const SimState& state, int channel, double t)
{
    return sampledVolts(state, channel, t) * state.channels[channel].probe;
}

double combine(MathOperation operation, double a, double b)
{
    switch (operation) {
    case MathOperation::Subtract: return a - b;
    case MathOperation::Multiply: return a * b;
    default: return a + b;
    }
}

double windowWeight(FftWindow window, int i)
{
    const double x = 2 * std::numbers::pi * i / (FftLength - 1);
    switch (window) {
    case FftWindow::Hanning: return 0.5 - 0.5 * std::cos(x);
    case FftWindow::Hamming: return 0.54 - 0.46 * std::cos(x);
    case FftWindow::Blackman: return 0.42 - 0.5 * std::cos(x) + 0.08 * std::cos(2 * x);
    case FftWindow::Rectangle: break;
    }
    return 1.0;
}

// In-place radix-2 transform; the length is a power of two.
void transform(std::vector<std::complex<double>>& data)
{
    const size_t n = data.size();
    for (size_t i = 1, j = 0; i < n; ++i) {
        size_t bit = n >> 1;
        for (; j & bit; bit >>= 1)
            j ^= bit;
        j ^= bit;
        if (i < j) std::swap(data[i], data[j]);
    }
    for (size_t length = 2; length <= n; length <<= 1) {
        const std::complex<double> turn = std::polar(1.0, -2 * std::numbers::pi / double(length));
        for (size_t start = 0; start < n; start += length) {
            std::complex<double> w = 1.0;
            for (size_t k = 0; k < length / 2; ++k, w *= turn) {
                const std::complex<double> odd = data[start + k + length / 2] * w;
                data[start + k + length / 2] = data[start + k] - odd;
                data[start + k] += odd;
            }
        }
    }
}

int fftSourceChannel(const SimState& state)
{
    return state.fft.source == 1 ? 1 : 0;
}

int fftRow(const FftState& fft, double vrms)
{
    const double value = fft.dbScale ? 20 * std::log10(std::max(vrms, 1e-12)) : vrms;
    const double perDivision = fft.dbScale ? double(fft.dbScalePerDiv) : fft.vrmsScale;
    const double row = std::clamp(100 - fft.vertOffset - value * 25 / perDivision, 0.0, 199.0);
    return int(std::lround(fft.fullScreen ? row : row / 2));
}

} // namespace

double mathScale(const SimState& state)
{
    const double a = state.channels[0].scale * state.channels[0].probe;
    const double b = state.channels[1].scale * state.channels[1].probe;
    return state.math.operation == MathOperation::Multiply ? a * b : std::max(a, b);
}

int scaleLadderIndex(double scale)
{
    int index = 0;
    for (double step = 1e-3; step * 1.0001 < scale && index < 30; ++index)
        step *= (index % 3 == 1) ? 2.5 : 2.0;
    return index;
}

QByteArray mathScreenCodes(const SimState& state, const Frame& frame)
{
    const double scale = mathScale(state);
    const MathOperation operation =
        state.math.operation == MathOperation::Fft ? state.math.lastArithmetic : state.math.operation;
    QByteArray codes(ScreenPointCount, '\0');
    for (int i = 0; i < ScreenPointCount; ++i) {
        const double t = pointTime(state, frame, 0, i);
        const double volts = combine(operation, displayedVolts(state, 0, t), displayedVolts(state, 1, t));
        codes[i] = char(std::lround(std::clamp(100 - volts * 25 / scale, 0.0, 255.0)));
    }
    return codes;
}

double fftBinWidth(const SimState& state)
{
    const double step = state.timebase.main.scale / 50;
    return 1.0 / (step * FftLength);
}

double fftHorizontalScale(const SimState& state)
{
    return 50 * fftBinWidth(state);
}

QVector<double> fftSpectrum(const SimState& state, const Frame& frame)
{
    const int channel = fftSourceChannel(state);
    std::vector<std::complex<double>> data(FftLength);
    double weightSum = 0;
    for (int i = 0; i < FftLength; ++i) {
        const double weight = windowWeight(state.fft.window, i);
        const double t = pointTime(state, frame, channel, i - FftLength / 2 + ScreenPointCount / 2);
        data[i] = weight * displayedVolts(state, channel, t);
        weightSum += weight;
    }
    transform(data);
    QVector<double> spectrum(FftBins);
    for (int k = 0; k < FftBins; ++k) {
        const double amplitude = std::abs(data[k]) / weightSum;
        spectrum[k] = k == 0 ? amplitude : 2 * amplitude / std::numbers::sqrt2;
    }
    return spectrum;
}

QByteArray fftScreenCodes(const SimState& state, const Frame& frame)
{
    const QVector<double> spectrum = fftSpectrum(state, frame);
    QByteArray codes(FftBins, '\0');
    for (int k = 0; k < FftBins; ++k)
        codes[k] = char(fftRow(state.fft, spectrum[k]));
    return codes;
}
