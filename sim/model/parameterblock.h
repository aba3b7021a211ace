#pragma once
// The 80 bytes of :WAVEFORM:PARAMETER?: where the traces lie on the screen,
// what the frame holds, and how math and FFT are set. Little-endian.

#include "model/acquisition.h"
#include "model/simstate.h"

#include <QByteArray>

constexpr int ParameterBlockSize = 80;

namespace ParameterOffset {
constexpr int ScrStartPos = 0, ScrEndPos = 2, ScrStartPosA = 4, ScrEndPosA = 6, ScrStartPosB = 8,
              ScrEndPosB = 10;
constexpr int TimeRolling = 12, ChannelEnabledStop = 13, MathEnabledStop = 17, MathOperate = 18;
constexpr int MathOffsetF = 20, MathOffsetS = 24, MathScaleF = 28, MathScaleS = 32;
constexpr int FftEnabledStop = 34, FftSource = 35, FftWindowType = 36, FftScreen = 37, FftScaleType = 38;
constexpr int FftVrms = 40, FftDbVrms = 44, FftVertOffsetF = 48, FftVertOffsetS = 52;
constexpr int FftHorizScaleF = 56, FftHorizScaleS = 60, FftHorizOffsetF = 64, FftHorizOffsetS = 68;
constexpr int ChanPeakState = 70;
} // namespace ParameterOffset

QByteArray parameterBlock(const SimState& state, const Frame& frame);
