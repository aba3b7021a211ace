#pragma once
// The record behind one memory wave window: what a .wfm file held, the
// window's working settings (stepped by hand), the settings as loaded (for
// Reset and CSV), and where each time base falls on the 300 columns.

#include <QByteArray>
#include <QString>
#include <array>
#include <cstdint>
#include <vector>

// Screen columns and sample indices of one time base, as the window computation leaves them.
struct MemoryWaveWindow {
    int32_t StartPt = 0;
    int32_t EndPt = 0;
    int16_t ScrStartPos = 0;
    int16_t ScrEndPos = 0;
    int16_t StartPos = 0;
    int16_t EndPos = 0;
};

// The settings the steppers change, kept once more as loaded.
struct MemoryWaveSettings {
    std::array<float, 4> ChanOffset{};
    std::array<float, 4> ChanVoltDiv{};
    double TimeDiv = 0, Delay = 0, StartTime = 0;
    float SampleRate = 0;
    double TimeDivA = 0, DelayA = 0, StartTimeA = 0;
    float SampleRateA = 0;
    double TimeDivB = 0, DelayB = 0, StartTimeB = 0;
    float SampleRateB = 0;
};

// Values the sheet file keeps for a memory wave window that no .wfm load fills.
struct MemorySheetValues {
    bool ModeFlag = false;           // the fourth flag beside IsAlternation
    std::array<bool, 5> ViewFlags{}; // behind GridOn and ColorOn
    bool FifthOn = false;            // the fifth array is filed
    std::array<QString, 2> ViewTexts;
    std::array<int16_t, 2> SnapshotWords{};
    std::array<bool, 2> SnapshotFlags{};
    uint8_t SnapshotByte = 0;
    std::vector<int16_t> FifthSamples;
};

enum class MemoryTimeBase : int { Single, A, B };

struct MemoryWaveSlot {
    QString Name;
    QString FileName;
    bool HasData = false;
    QString TriggerMode;
    bool IsAlternation = false;
    // Codes b + 25 of the stored bytes; element `count` exists and stays 0.
    std::array<std::vector<int16_t>, 4> Samples;
    std::array<bool, 4> ChanEnabled{};
    std::array<bool, 4> ChanPeakState{};
    std::array<float, 4> ChanOffset{};
    std::array<float, 4> ChanVoltDiv{};
    std::array<float, 4> ChanVoltDivMeasured{};
    std::array<int16_t, 4> ChanShiftMeasured{};
    bool ModeYT = false, ModeXY = false, ModeRoll = false;
    int32_t RollPosition = 0;
    int32_t SampleCount = 0;
    double TimeDiv = 0, Delay = 0;
    float SampleRate = 0;
    double StartTime = 0, ExtraTime = 0;
    int32_t SampleCountA = 0;
    double TimeDivA = 0, DelayA = 0;
    float SampleRateA = 0;
    double StartTimeA = 0;
    int32_t SampleCountB = 0;
    double TimeDivB = 0, DelayB = 0;
    float SampleRateB = 0;
    double StartTimeB = 0;
    uint8_t TriggerSourceA = 0, TriggerSourceB = 0;

    QByteArray Header;         // the 420 header bytes as loaded
    MemoryWaveSettings Loaded; // SnapshotLoadedSettings
    bool GridOn = true;
    bool ColorOn = true;
    bool Shown = false; // a window shows the slot
    MemoryWaveWindow Single, WindowA, WindowB;
    MemorySheetValues SheetValues;

    // Samples held for a channel (0 to 3): the vector's size less the spare last element.
    int sampleCount(int channel) const;
    // The time base a channel (0 to 3) runs on: Single outside ALTERNATION, else
    // A or B by the trigger sources' pairing.
    MemoryTimeBase timeBaseOf(int channel) const;
    MemoryWaveWindow& windowOf(MemoryTimeBase base);
    const MemoryWaveWindow& windowOf(MemoryTimeBase base) const;
};

inline constexpr int MemoryWaveSlotCount = 4;
extern std::array<MemoryWaveSlot, MemoryWaveSlotCount> MemoryWaveSlots;
// The fastest time step a file's model allows (2, 3, 4; anything else: the fastest of all).
extern int ModelBandwidthCode;

// True when CH1 and CH3 run on time base A (and CH2, CH4 on B).
bool SourcesPairOddChannels(uint8_t triggerSourceA, uint8_t triggerSourceB);

void SnapshotLoadedSettings(MemoryWaveSlot& slot);
void RestoreLoadedSettings(MemoryWaveSlot& slot);
void ClearMemoryWaveSlot(int slot);
void ResetMemoryWaveSlots();
