#pragma once
// The instrument's 80-byte reply to ":WAVEFORM:PARAMETER?": where the traces lie on
// the screen and how channels, math and FFT were set when the instrument stopped.
// The prefix of each field tells its width on the wire. Screen positions count in
// units of two samples.

#include <array>
#include <cstddef>
#include <cstdint>

struct WaveParameter {
    int16_t s16ScrStartPos = 0;  // offset 0
    int16_t s16ScrEndPos = 0;    // 2
    int16_t s16ScrStartPosA = 0; // 4: alternate trigger, source A
    int16_t s16ScrEndPosA = 0;   // 6
    int16_t s16ScrStartPosB = 0; // 8: alternate trigger, source B
    int16_t s16ScrEndPosB = 0;   // 10
    int8_t s8TimeRolling = 0;    // 12
    int8_t s8CH1Enabled_Stop = 0;
    int8_t s8CH2Enabled_Stop = 0;
    int8_t s8CH3Enabled_Stop = 0;
    int8_t s8CH4Enabled_Stop = 0;
    int8_t s8MathEnabled_Stop = 0;     // 17
    int8_t s8MathOperate = 0;          // 18
    float f32MathOffset = 0;           // 20
    int16_t s16MathOffset = 0;         // 24
    float f32MathScale = 0;            // 28
    int16_t s16MathScale = 0;          // 32
    int8_t s8FFTEnabled_Stop = 0;      // 34
    int8_t s8FFTSource = 0;            // 35
    int8_t s8FFTWindow = 0;            // 36
    int8_t s8FFTScreen = 0;            // 37: 0 full screen, else split
    int8_t s8FFTScaleType = 0;         // 38: 0 Vrms, else dB
    float f32FFTVrms = 0;              // 40
    int16_t s16FFTdBVrms = 0;          // 44
    float f32FFTVertOffset = 0;        // 48
    int16_t s16FFTVertOffset = 0;      // 52
    float f32FFTHorizScale = 0;        // 56
    int16_t s16FFTHorizScale = 0;      // 60
    float f32FFTHorizOffset = 0;       // 64
    int16_t s16FFTHorizOffset = 0;     // 68
    int16_t s16ChanPeakState = 0;      // 70: bits 0 to 3 for channels 1 to 4
    std::array<int16_t, 4> Reserved{}; // 72

    bool operator==(const WaveParameter&) const = default;
};

inline constexpr std::size_t WaveParameterSize = 80;

// Decodes the 80 bytes (little-endian, at the offsets above) into out. bytes must
// hold at least WaveParameterSize bytes; a null argument leaves out untouched.
void Lindquay(const unsigned char* bytes, WaveParameter* out);

// Which channels the instrument was sampling in peak-detect mode: flags[n] for
// channel n from 1 to 4 (flags[0] is unused so channel numbers index directly).
using PeakFlags = std::array<bool, 5>;

// flags[n] is set exactly when bit n - 1 of s16ChanPeakState is set.
void GetPeakStates(const WaveParameter& parameter, PeakFlags& flags);
