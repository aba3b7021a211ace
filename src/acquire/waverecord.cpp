#include "acquire/waverecord.h"

std::array<WaveRecord, WaveRecordCount> WaveRecords;
int CurrentWaveIndex = 0;

namespace {

template <typename Record, typename Member>
auto& byChannel(Record& record, int channel, Member ch1, Member ch2, Member ch3, Member ch4)
{
    switch (channel) {
    case 2: return record.*ch2;
    case 3: return record.*ch3;
    case 4: return record.*ch4;
    default: return record.*ch1;
    }
}

} // namespace

bool WaveRecord::showChannel(int channel) const
{
    if (channel < 1 || channel > 4) return false;
    return byChannel(*this, channel, &WaveRecord::ShowCH1, &WaveRecord::ShowCH2, &WaveRecord::ShowCH3,
                     &WaveRecord::ShowCH4);
}

void WaveRecord::setShowChannel(int channel, bool show)
{
    if (channel < 1 || channel > 4) return;
    byChannel(*this, channel, &WaveRecord::ShowCH1, &WaveRecord::ShowCH2, &WaveRecord::ShowCH3,
              &WaveRecord::ShowCH4) = show;
}

WaveArray& WaveRecord::channelWave(int channel)
{
    return byChannel(*this, channel, &WaveRecord::WaveCH1, &WaveRecord::WaveCH2, &WaveRecord::WaveCH3,
                     &WaveRecord::WaveCH4);
}

const WaveArray& WaveRecord::channelWave(int channel) const
{
    return const_cast<WaveRecord*>(this)->channelWave(channel);
}

WaveArray& WaveRecord::channelPeak(int channel)
{
    return byChannel(*this, channel, &WaveRecord::WaveCH1Peak, &WaveRecord::WaveCH2Peak,
                     &WaveRecord::WaveCH3Peak, &WaveRecord::WaveCH4Peak);
}

const WaveArray& WaveRecord::channelPeak(int channel) const
{
    return const_cast<WaveRecord*>(this)->channelPeak(channel);
}

bool SplitScreenOf(const QString& triggerMode, const QString& fftDisplayText, int8_t s8FFTScreen)
{
    if (triggerMode == QLatin1String("ALTERNATION")) return true;
    return fftDisplayText == QLatin1String("ON") && s8FFTScreen <= 0;
}

void ResetWaveRecords()
{
    WaveRecords.fill(WaveRecord{});
    CurrentWaveIndex = 0;
}
