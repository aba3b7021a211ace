#pragma once
// One record window's slot: the frames of the opened .rcd file with the texts
// of its source channel, and the window's play state. The slots outlive their
// windows and are what the data sheet keeps.

#include <QString>
#include <array>
#include <cstdint>
#include <vector>

// PlayState values.
enum : uint8_t { RecordReplaying = 0, RecordPause = 1, RecordStop = 2 };

inline constexpr double DefaultFrameInterval = 0.05;

struct RecordSlot {
    QString Name;
    QString FileName;
    // One element per byte of the frame area, bounds 0 to L (so L + 1 elements).
    std::vector<int16_t> Samples;
    std::vector<int16_t> SecondSamples;
    bool HasSecond = false;
    QString SourceName; // "CH1" to "CH4"
    QString VoltText;
    QString OffsetText;
    QString TimeText;
    QString DelayText;
    int16_t FirstFrame = 1;
    int16_t LastFrame = 0;
    int16_t CurrentFrame = 1;

    uint8_t PlayState = RecordStop;
    bool HasFile = false;
    bool Circular = false;
    double FrameInterval = DefaultFrameInterval; // seconds
    QString StatusText;
    bool WhiteBackground = false;
    bool storedFlag = false; // kept only for the sheet file
};

inline constexpr int RecordSlotCount = 5;
extern std::array<RecordSlot, RecordSlotCount> RecordSlots;

// The slot of a window number, or null outside 0 to 4.
RecordSlot* RecordSlotAt(int slot);
// A new window's slot starts with no file and the play flags at their start values.
void ClearRecordSlot(int slot);
void ResetRecordSlots();
