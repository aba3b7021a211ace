#include "acquire/waveparameter.h"

#include <cstring>

namespace {

// Reads little-endian fields one at a time, whatever the host's byte order.
class WireReader {
  public:
    explicit WireReader(const unsigned char* bytes) : bytes_(bytes) {}

    int8_t s8(std::size_t at) const { return static_cast<int8_t>(bytes_[at]); }
    int16_t s16(std::size_t at) const
    {
        return static_cast<int16_t>(static_cast<uint16_t>(bytes_[at] | (bytes_[at + 1] << 8)));
    }
    float f32(std::size_t at) const
    {
        const uint32_t bits = uint32_t(bytes_[at]) | uint32_t(bytes_[at + 1]) << 8 |
                              uint32_t(bytes_[at + 2]) << 16 | uint32_t(bytes_[at + 3]) << 24;
        float value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

  private:
    const unsigned char* bytes_;
};

void readPositions(const WireReader& in, WaveParameter& p)
{
    p.s16ScrStartPos = in.s16(0);
    p.s16ScrEndPos = in.s16(2);
    p.s16ScrStartPosA = in.s16(4);
    p.s16ScrEndPosA = in.s16(6);
    p.s16ScrStartPosB = in.s16(8);
    p.s16ScrEndPosB = in.s16(10);
}

void readEnables(const WireReader& in, WaveParameter& p)
{
    p.s8TimeRolling = in.s8(12);
    p.s8CH1Enabled_Stop = in.s8(13);
    p.s8CH2Enabled_Stop = in.s8(14);
    p.s8CH3Enabled_Stop = in.s8(15);
    p.s8CH4Enabled_Stop = in.s8(16);
    p.s8MathEnabled_Stop = in.s8(17);
}

void readMath(const WireReader& in, WaveParameter& p)
{
    p.s8MathOperate = in.s8(18);
    p.f32MathOffset = in.f32(20);
    p.s16MathOffset = in.s16(24);
    p.f32MathScale = in.f32(28);
    p.s16MathScale = in.s16(32);
}

void readFft(const WireReader& in, WaveParameter& p)
{
    p.s8FFTEnabled_Stop = in.s8(34);
    p.s8FFTSource = in.s8(35);
    p.s8FFTWindow = in.s8(36);
    p.s8FFTScreen = in.s8(37);
    p.s8FFTScaleType = in.s8(38);
    p.f32FFTVrms = in.f32(40);
    p.s16FFTdBVrms = in.s16(44);
    p.f32FFTVertOffset = in.f32(48);
    p.s16FFTVertOffset = in.s16(52);
    p.f32FFTHorizScale = in.f32(56);
    p.s16FFTHorizScale = in.s16(60);
    p.f32FFTHorizOffset = in.f32(64);
    p.s16FFTHorizOffset = in.s16(68);
}

} // namespace

void Lindquay(const unsigned char* bytes, WaveParameter* out)
{
    if (!bytes || !out) return;
    const WireReader in(bytes);
    WaveParameter p;
    readPositions(in, p);
    readEnables(in, p);
    readMath(in, p);
    readFft(in, p);
    p.s16ChanPeakState = in.s16(70);
    for (std::size_t i = 0; i < p.Reserved.size(); ++i)
        p.Reserved[i] = in.s16(72 + 2 * i);
    *out = p;
}

void GetPeakStates(const WaveParameter& parameter, PeakFlags& flags)
{
    flags[0] = false;
    for (int n = 1; n <= 4; ++n)
        flags[n] = (parameter.s16ChanPeakState >> (n - 1)) & 1;
}
