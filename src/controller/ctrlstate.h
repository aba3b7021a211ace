#pragma once
// The instrument's settings as the control tree shows them: one flat record of
// display texts (never numbers), the control file in use and its unsaved flag.
// Value words are held in the language that was in force when they were set.

#include <QString>
#include <cstdint>

struct AltEdgeFields {
    QString Slope, Coupling, Level, Sensitivity, Holdoff;
};
struct AltPulseFields {
    QString Mode, Width, Coupling, Level, Sensitivity, Holdoff;
};
struct AltVideoFields {
    QString Polarity, Sync, Standard, Line, Level, Sensitivity, Holdoff;
};
struct AltSlopeFields {
    QString Mode, Time, Window, Coupling, LevelA, LevelB, Sensitivity, Holdoff;
};

// Channel arrays are indexed 1 to 4, the logic bits 1 to 16; index 0 is unused.
struct CtrlRecord {
    QString RunStop;
    QString ChDisplay[5], ChVoltDiv[5], ChOffset[5], ChCoupling[5], ChBwLimit[5], ChProbe[5], ChInvert[5];
    QString LaEnable;
    QString LaDisplay[17], LaPosition[17];
    QString LaThreshold, LaHighByte, LaLowByte;
    QString Spare1, Spare2;
    QString TimeDiv, TimeDivA, TimeDivB, TimeDelay, TimeDelayA, TimeDelayB;
    QString Holdoff, MemorySize, SpareTime, TimeFormat;
    QString TrigMethod;
    QString EdgeSlope, EdgeSource, EdgeSweep, EdgeCoupling, EdgeHf, EdgeSensitivity, EdgeLevel;
    QString PulseSource, PulseMode, PulseWidth, PulseCoupling, PulseHf, PulseSensitivity, PulseLevel,
        PulseSweep;
    QString VideoSource, VideoMode, VideoPolarity, VideoSync, VideoStandard, VideoLine, VideoSensitivity,
        VideoLevel;
    QString PatternSource;
    QString PatternCode[6];
    QString PatternSweep, PatternCoupling, PatternHf, PatternSensitivity, PatternOneLevel;
    QString SlopeSource, SlopeMode, SlopeTime, SlopeWindow, SlopeLevelA, SlopeLevelB, SlopeCoupling,
        SlopeSensitivity, SlopeSweep;
    QString AltSourceA, AltSourceB;
    QString AltTypeA, AltTypeB;
    AltEdgeFields AltEdge[2]; // 0 is window A, 1 window B
    AltPulseFields AltPulse[2];
    AltVideoFields AltVideo[2];
    AltSlopeFields AltSlope[2];
    QString DurationQualifier;
    QString DurationCode[18];
    QString DurationTime, DurationSweep, DurationSpare;
    QString AcqMode, AcqType, AcqAverages, AcqIntensity, AcqAntiAlias;
    QString DisplayType, DisplayPersist, DisplayGrid;
    QString AltChannel;
    int16_t PatternEdge[5] = {};
    bool PatternExtIsDiv5 = false;
    QString PatternLevel[5];
};

extern CtrlRecord CtrlData;
extern QString CtrlFileName;
extern bool CtrlDirty;

// The record as a new control file has it, value words in the given language.
CtrlRecord NewCtrlRecord(int language);
// CtrlData to the New defaults in the language in force; no file, nothing unsaved.
void ResetCtrlState();

// The first two inverts and the spare before the time format OFF, as the
// instrument has no such settings to keep them.
void ClearInvertsAndSpare();

// Lets the wave windows follow the tree's display switches (math from the link).
void InstallTreeDisplaySwitches();
