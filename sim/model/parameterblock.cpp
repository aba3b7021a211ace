#include "model/parameterblock.h"

#include "model/mathblocks.h"

#include <QtEndian>
#include <cstring>

namespace {

class BlockWriter {
  public:
    BlockWriter() : bytes_(ParameterBlockSize, '\0') {}

    void s8(int offset, int value) { bytes_[offset] = char(qint8(value)); }
    void s16(int offset, int value) { qToLittleEndian<qint16>(qint16(value), bytes_.data() + offset); }
    void f32(int offset, double value)
    {
        const float single = float(value);
        quint32 bits = 0;
        std::memcpy(&bits, &single, sizeof bits);
        qToLittleEndian<quint32>(bits, bytes_.data() + offset);
    }
    const QByteArray& bytes() const { return bytes_; }

  private:
    QByteArray bytes_;
};

constexpr int LastPosition = 299;

void writePositions(BlockWriter& out, const SimState& state, const Frame& frame)
{
    using namespace ParameterOffset;
    const int start = state.timebase.format == TimeFormat::Roll ? 300 - frame.rollFill : 0;
    out.s16(ScrStartPos, start);
    out.s16(ScrEndPos, LastPosition);
    if (state.trigger.mode == TriggerType::Alternation) {
        out.s16(ScrEndPosA, LastPosition);
        out.s16(ScrEndPosB, LastPosition);
    }
    out.s8(TimeRolling, state.timebase.format == TimeFormat::Roll ? 1 : 0);
}

void writeChannels(BlockWriter& out, const SimState& state, const Frame& frame)
{
    int peakBits = 0;
    for (int channel = 0; channel < Channels; ++channel) {
        out.s8(ParameterOffset::ChannelEnabledStop + channel, frame.captured[channel] ? 1 : 0);
        if (frame.captured[channel] && state.acquire.type == AcquireType::PeakDetect)
            peakBits |= 1 << channel;
    }
    out.s16(ParameterOffset::ChanPeakState, peakBits);
}

void writeMath(BlockWriter& out, const SimState& state)
{
    using namespace ParameterOffset;
    const bool fft = state.math.operation == MathOperation::Fft;
    out.s8(MathEnabledStop, state.math.display && !fft ? 1 : 0);
    out.s8(MathOperate, int(state.math.operation));
    out.f32(MathOffsetF, 0.0);
    out.s16(MathOffsetS, 0);
    out.f32(MathScaleF, mathScale(state));
    out.s16(MathScaleS, scaleLadderIndex(mathScale(state)));
}

void writeFft(BlockWriter& out, const SimState& state)
{
    using namespace ParameterOffset;
    const FftState& fft = state.fft;
    const double verticalUnit = fft.dbScale ? fft.dbScalePerDiv : fft.vrmsScale;
    out.s8(FftEnabledStop, state.math.display && state.math.operation == MathOperation::Fft ? 1 : 0);
    out.s8(FftSource, fft.source);
    out.s8(FftWindowType, int(fft.window));
    out.s8(FftScreen, fft.fullScreen ? 1 : 0);
    out.s8(FftScaleType, fft.dbScale ? 1 : 0);
    out.f32(FftVrms, fft.vrmsScale);
    out.s16(FftDbVrms, fft.dbScalePerDiv);
    out.f32(FftVertOffsetF, fft.vertOffset * verticalUnit / 25);
    out.s16(FftVertOffsetS, fft.vertOffset);
    out.f32(FftHorizScaleF, fftHorizontalScale(state));
    out.s16(FftHorizScaleS, fft.horizScaleCode);
    // The frequency at the centre of the grid: the program draws line
    // 2 * offset - 510 at the left edge, two lines a pixel.
    out.f32(FftHorizOffsetF, (2 * fft.horizOffset - 510 + 300) * fftBinWidth(state));
    out.s16(FftHorizOffsetS, fft.horizOffset);
}

} // namespace

QByteArray parameterBlock(const SimState& state, const Frame& frame)
{
    BlockWriter out;
    writePositions(out, state, frame);
    writeChannels(out, state, frame);
    writeMath(out, state);
    writeFft(out, state);
    return out.bytes();
}
