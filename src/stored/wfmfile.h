#pragma once
// The instrument's waveform file (.wfm): checked and read into a memory wave
// slot. Pure functions over the file's bytes, shared by the window, the
// command line, the data sheet and the fuzz target.

#include "stored/memorywaveslot.h"

#include <QByteArray>
#include <QString>
#include <array>

// The reader's buffer: a longer file is cut here, a shorter one reads zeros up to it.
inline constexpr qsizetype WfmBufferSize = 2'100'001;
inline constexpr qsizetype WfmHeaderSize = 420;
inline constexpr qsizetype WfmAlternationStart = WfmHeaderSize + 84;
inline constexpr qsizetype WfmBlockPitch = 0x2000;

struct WfmLoadResult {
    bool accepted = false;
    QString message; // the box text of a refused file, in the language in force
};

// Steps 3 to 11 of a load, then the snapshot and peak state. A refused file only
// clears HasData. `bandwidthCode` follows the model's digits.
WfmLoadResult LoadMemoryWaveBytes(const QByteArray& file, MemoryWaveSlot& slot, int& bandwidthCode);

// What every load ends with, also for a slot that a data sheet filled:
// SnapshotLoadedSettings and ComputeChanPeakState from the kept header.
void SettleMemoryWave(MemoryWaveSlot& slot);

// Peak data per channel, from the header's acquire mode, trigger kind, peak
// flags and trigger sources.
void ComputeChanPeakState(const QByteArray& header, bool& ch1, bool& ch2, bool& ch3, bool& ch4);

// The file's bytes up to the buffer size; empty when it can't be read.
QByteArray ReadWfmFile(const QString& path, QString* error = nullptr);
