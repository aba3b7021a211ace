#pragma once
// One wave window's snapshot of the instrument: the parameter block, the settings
// read as text, the date and the sample arrays. Drawing, measuring and saving all
// work from it without asking the instrument again.

#include "acquire/waveparameter.h"

#include <QString>
#include <array>
#include <cstdint>
#include <vector>

// Sample codes in screen rows. The arrays grow to the size a reading gives them;
// readers check the index before every access.
using WaveArray = std::vector<int32_t>;

// Arrays indexed 1 to 4 (or 1 to 6) keep the channel number as the index; entry 0 is unused.
using ChannelTexts = std::array<QString, 5>;

struct WaveRecord {
    QString WaveTitle;
    bool HasData = false;
    bool WindowOpen = false;
    bool AutoRefreshing = false;
    QString TriggerMode;
    WaveArray WaveCH1, WaveCH1Peak;
    WaveArray WaveCH2, WaveCH2Peak;
    WaveArray WaveCH3, WaveCH3Peak;
    WaveArray WaveCH4, WaveCH4Peak;
    int32_t Points = 0;
    bool storedFlag = false; // kept only for the sheet file
    bool YTMode = false;
    bool RollMode = false;
    std::array<int16_t, 2> storedWords{}; // kept only for the sheet file
    ChannelTexts OffsetText;
    ChannelTexts ScaleText;
    QString TimeScaleText;
    QString TimeOffsetText;
    QString TimeScaleAText, TimeScaleBText;
    QString TimeOffsetAText, TimeOffsetBText;
    QString DateText;
    int32_t LastChannel = 0;
    bool ColorMode = false; // true: colour picture on black; false: black on white
    bool GridOn = false;
    bool SplitScreen = false;
    bool BestFit = false;
    WaveArray WaveFFT;
    WaveArray WaveMath, WaveMathPeak;
    WaveArray WaveLa;
    bool ShowCH1 = false, ShowCH2 = false, ShowCH3 = false, ShowCH4 = false, ShowMath = false;
    bool ShowLa = false;
    std::array<bool, 7> PrevShow{}; // 1 to 4 channels, 5 math, 6 logic channels
    WaveParameter Parameter;
    bool XYMode = false;
    QString MathDisplayText;
    QString FFTDisplayText;

    // The wanted flag of channel 1 to 4; any other number reads false and sets nothing.
    bool showChannel(int channel) const;
    void setShowChannel(int channel, bool show);
    // The sample array of channel 1 to 4, or its second (peak) half.
    WaveArray& channelWave(int channel);
    const WaveArray& channelWave(int channel) const;
    WaveArray& channelPeak(int channel);
    const WaveArray& channelPeak(int channel) const;
};

inline constexpr int WaveRecordCount = 18;
extern std::array<WaveRecord, WaveRecordCount> WaveRecords;
// The slot a running reading fills.
extern int CurrentWaveIndex;

// Whether the grid is cut in an upper and a lower half: in alternate trigger, and
// when the spectrum shares the screen with the traces.
bool SplitScreenOf(const QString& triggerMode, const QString& fftDisplayText, int8_t s8FFTScreen);

void ResetWaveRecords();
