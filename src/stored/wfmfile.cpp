#include "stored/wfmfile.h"

#include "stored/filemodel.h"
#include "stored/storedbytes.h"
#include "text/messages.h"

#include <QFile>
#include <algorithm>

namespace {

constexpr qsizetype ModelOffset = 4;
constexpr qsizetype ChannelTable = 68;
constexpr qsizetype ChannelRecordSize = 24;
constexpr uint8_t TriggerAlternation = 4;
constexpr int32_t AcquirePeak = 2;

bool magicAccepted(uint16_t magic)
{
    return magic == 0xA5A1 || magic == 0xA5A5;
}

double tickAt(const QByteArray& header, qsizetype offset)
{
    return TickTimeOf(readLe<qint64>(header, offset));
}

// Clears what a file fills; the sheet's name, the view options and the shown flag stay.
void clearLoadedFields(MemoryWaveSlot& slot)
{
    MemoryWaveSlot fresh;
    fresh.Name = slot.Name;
    fresh.FileName = slot.FileName;
    fresh.GridOn = slot.GridOn;
    fresh.ColorOn = slot.ColorOn;
    fresh.Shown = slot.Shown;
    slot = std::move(fresh);
}

void readTimeBases(const QByteArray& h, MemoryWaveSlot& slot)
{
    slot.SampleCountA = readLe<qint32>(h, 60);
    if (slot.IsAlternation) {
        slot.TimeDivA = tickAt(h, 164);
        slot.DelayA = tickAt(h, 172);
        slot.SampleRateA = readFloatLe(h, 180);
        slot.StartTimeA = tickAt(h, 192);
        slot.SampleCountB = readLe<qint32>(h, 268);
        slot.TimeDivB = tickAt(h, 272);
        slot.DelayB = tickAt(h, 280);
        slot.SampleRateB = readFloatLe(h, 288);
        slot.StartTimeB = tickAt(h, 300);
        slot.TriggerSourceA = readLe<quint8>(h, 202);
        slot.TriggerSourceB = readLe<quint8>(h, 232);
    } else {
        slot.SampleCount = slot.SampleCountA;
        slot.TimeDiv = tickAt(h, 164);
        slot.Delay = tickAt(h, 172);
        slot.SampleRate = readFloatLe(h, 180);
        slot.ExtraTime = tickAt(h, 184);
        slot.StartTime = tickAt(h, 192);
    }
}

void readChannelScales(const QByteArray& h, MemoryWaveSlot& slot, int n)
{
    const qsizetype at = ChannelTable + n * ChannelRecordSize;
    const double scale = readLe<qint32>(h, at) / 1e6;
    slot.ChanVoltDiv[size_t(n)] = float(scale);
    slot.ChanOffset[size_t(n)] = float((readLe<qint16>(h, at + 4) / 25.0) * scale);
    slot.ChanVoltDivMeasured[size_t(n)] = float(readLe<qint32>(h, at + 16) / 1e6);
    slot.ChanShiftMeasured[size_t(n)] = readLe<qint16>(h, at + 20);
}

// Codes of `count` samples from `position`: bytes past the file read as the
// buffer's zero (code 25); positions past the buffer are skipped and keep 0.
std::vector<int16_t> readSamples(const QByteArray& file, qint64 position, qsizetype count)
{
    std::vector<int16_t> codes(size_t(count) + 1, 0);
    const qint64 fileEnd = std::min<qint64>(file.size(), WfmBufferSize);
    const auto* bytes = reinterpret_cast<const uint8_t*>(file.constData());
    for (qsizetype i = 0; i < count; ++i) {
        const qint64 at = position + i;
        if (at < 0 || at >= WfmBufferSize) break;
        codes[size_t(i)] = int16_t((at < fileEnd ? bytes[at] : 0) + 25);
    }
    return codes;
}

// ALTERNATION: the four blocks follow each other at the pitch of time base A,
// a channel that is off keeping its place. EDGE: fixed blocks of 8192; with
// long memory CH2 shares CH1's bytes and CH4 shares CH3's.
qint64 samplePosition(const MemoryWaveSlot& slot, bool longMemory, int n)
{
    if (slot.IsAlternation) return WfmAlternationStart + qint64(n) * slot.SampleCountA;
    return WfmHeaderSize + (longMemory ? (n / 2) * 2 * WfmBlockPitch : n * WfmBlockPitch);
}

} // namespace

void ComputeChanPeakState(const QByteArray& header, bool& ch1, bool& ch2, bool& ch3, bool& ch4)
{
    ch1 = ch2 = ch3 = ch4 = false;
    if (readLe<qint32>(header, 404) != AcquirePeak) return;
    const uint8_t flags = readLe<quint8>(header, 402);
    if (readLe<quint8>(header, 200) != TriggerAlternation) {
        ch1 = ch2 = ch3 = ch4 = (flags & 1) != 0;
        return;
    }
    ch1 = (flags & 2) != 0;
    ch4 = (flags & 4) != 0;
    const bool odd = SourcesPairOddChannels(readLe<quint8>(header, 202), readLe<quint8>(header, 232));
    ch2 = odd ? ch4 : ch1;
    ch3 = odd ? ch1 : ch4;
}

WfmLoadResult LoadMemoryWaveBytes(const QByteArray& file, MemoryWaveSlot& slot, int& bandwidthCode)
{
    slot.HasData = false;
    if (!magicAccepted(readLe<quint16>(file, 0))) return {false, MsgFileError};
    const QString model = ReadFileModel(file, ModelOffset);
    if (!FileModelAccepted(model)) return {false, MsgFileFail};
    ApplyModelBandwidthCode(model, bandwidthCode);

    clearLoadedFields(slot);
    QByteArray header = file.left(WfmHeaderSize);
    header.resize(WfmHeaderSize, '\0');
    slot.Header = header;
    slot.IsAlternation = readLe<quint8>(header, 200) == TriggerAlternation;
    slot.TriggerMode = slot.IsAlternation ? QStringLiteral("ALTERNATION") : QStringLiteral("EDGE");
    const uint8_t timeMode = readLe<quint8>(header, 308);
    slot.ModeYT = timeMode == 0;
    slot.ModeXY = timeMode == 1;
    slot.ModeRoll = timeMode == 2;
    slot.RollPosition = readLe<qint32>(header, 56);
    readTimeBases(header, slot);

    // Samples past the buffer are never read, so no channel needs more room than it has.
    const qsizetype count = std::clamp<qsizetype>(slot.SampleCountA, 0, WfmBufferSize);
    const bool longMemory = readLe<quint8>(header, 52) != 0;
    for (int n = 0; n < 4; ++n) {
        readChannelScales(header, slot, n);
        const bool on = readLe<quint8>(header, ChannelTable + n * ChannelRecordSize + 14) == 1;
        slot.ChanEnabled[size_t(n)] = on;
        if (on) {
            slot.HasData = true;
            slot.Samples[size_t(n)] = readSamples(file, samplePosition(slot, longMemory, n), count);
        }
    }
    SettleMemoryWave(slot);
    return {true, {}};
}

void SettleMemoryWave(MemoryWaveSlot& slot)
{
    SnapshotLoadedSettings(slot);
    auto& p = slot.ChanPeakState;
    ComputeChanPeakState(slot.Header, p[0], p[1], p[2], p[3]);
}

QByteArray ReadWfmFile(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error) *error = file.errorString();
        return {};
    }
    return file.read(WfmBufferSize);
}
