#include "stored/rcdfile.h"

#include "platform/platform.h"
#include "document/sheetstate.h"
#include "stored/filemodel.h"
#include "stored/recordslot.h"
#include "stored/storedbytes.h"
#include "stored/storedfiledialogs.h"
#include "text/formatmask.h"
#include "text/language.h"
#include "text/messages.h"
#include "text/valuetext.h"

#include <QFile>
#include <algorithm>
#include <limits>

namespace {

enum Offset : qsizetype {
    Magic = 0,
    Model = 4,
    SecondCount = 44,
    Source = 48,
    SourceAlt = 52,
    FirstFrame = 56,
    LastFrame = 58,
    TimeDiv = 96,
    Delay = 104,
    Flags = 116,
};

// The four channel records: on byte, scale in microvolts, shift in 1/25 division.
constexpr qsizetype OnOffset[4] = {60, 70, 78, 86};
constexpr qsizetype ScaleOffset[4] = {64, 72, 80, 88};
constexpr qsizetype ShiftOffset[4] = {68, 76, 84, 92};

// The frame area as the work array sees it: past what was read, zeros.
int16_t workByte(const QByteArray& data, qsizetype index)
{
    if (index < 0 || index >= data.size() || index >= RecordWorkSize) return 0;
    return int16_t(quint8(data.at(index)));
}

// Bounds 0 to L; the work array caps what a hostile length can make us allocate.
size_t arraySize(qint64 length)
{
    return size_t(std::clamp<qint64>(length, 0, RecordWorkSize)) + 1;
}

void fillSamples(const QByteArray& data, qint64 length, RecordSlot& slot)
{
    slot.Samples.assign(arraySize(length), 0);
    slot.SecondSamples.assign(arraySize(length), 0);
    const qsizetype kept = qsizetype(std::min<qint64>(length, qint64(slot.Samples.size())));
    for (qsizetype i = 0; i < kept; ++i)
        slot.Samples[size_t(i)] = workByte(data, i);
}

void fillSecond(const QByteArray& data, qint32 count, RecordSlot& slot)
{
    const qsizetype kept = std::clamp<qsizetype>(count, 0, qsizetype(slot.SecondSamples.size()));
    for (qsizetype i = 0; i < kept; ++i)
        slot.SecondSamples[size_t(i)] = workByte(data, RecordSecondStart + i);
}

// 0 to 3 for CH1 to CH4; -1 for a source the instrument never writes.
int sourceChannel(const QByteArray& header)
{
    qint32 source = readLe<qint32>(header, Source);
    if (source == 4) source = readLe<qint32>(header, SourceAlt);
    return source >= 0 && source <= 3 ? int(source) : -1;
}

QString plain(double value)
{
    return GeneralFormat(value);
}

void fillTexts(const QByteArray& header, int channel, RecordSlot& slot)
{
    const double volts = readLe<qint32>(header, ScaleOffset[channel]) / 1e6;
    const double shift = readLe<qint16>(header, ShiftOffset[channel]);
    slot.VoltText = VoltText3(plain(volts));
    slot.OffsetText = VoltText3(plain((shift / 25.0) * volts));
    slot.TimeText = TimeText4(plain(TickTimeOf(readLe<qint64>(header, TimeDiv))));
    slot.DelayText = TimeText4(plain(TickTimeOf(readLe<qint64>(header, Delay))));
}

void fillFrames(const QByteArray& header, RecordSlot& slot)
{
    const int count = int(readLe<qint16>(header, LastFrame)) - int(readLe<qint16>(header, FirstFrame)) + 1;
    slot.FirstFrame = 1;
    slot.LastFrame = int16_t(std::clamp(count, 0, int(std::numeric_limits<int16_t>::max())));
    slot.CurrentFrame = 1;
}

void tell(RecordLoad outcome)
{
    const QString text = RecordLoadMessage(outcome);
    if (!text.isEmpty()) MsgBox(text, vbCritical);
}

} // namespace

void ParseRecord(const QByteArray& header, const QByteArray& data, qint64 length, int& result,
                 RecordSlot& slot)
{
    result = 0;
    fillSamples(data, length, slot);
    const bool second = (readLe<quint8>(header, Flags) & 1) != 0;
    if (second) {
        if (length < RecordSecondMinimum) {
            result = RecordChannelInvalid;
            return;
        }
        fillSecond(data, readLe<qint32>(header, SecondCount), slot);
    }
    slot.HasSecond = second;
    const int channel = sourceChannel(header);
    slot.SourceName = channel < 0 ? QString() : QStringLiteral("CH%1").arg(channel + 1);
    if (channel < 0 || readLe<quint8>(header, OnOffset[channel]) == 0) {
        result = RecordChannelInvalid;
        return;
    }
    fillTexts(header, channel, slot);
    fillFrames(header, slot);
}

RecordLoad LoadRecordBytes(const QByteArray& bytes, qint64 fileLength, RecordSlot& slot)
{
    if (!FileModelAccepted(ReadFileModel(bytes, Model))) return RecordLoad::BadModel;
    // A file too short for its own header can hold no record.
    if (readLe<quint16>(bytes, Magic) != RecordMagic || fileLength < RecordHeaderSize)
        return RecordLoad::BadMagic;
    int result = 0;
    ParseRecord(bytes.left(RecordHeaderSize), bytes.mid(RecordHeaderSize), fileLength - RecordHeaderSize,
                result, slot);
    if (result == RecordChannelInvalid) {
        slot.HasFile = false;
        return RecordLoad::InvalidChannel;
    }
    slot.HasFile = true;
    slot.PlayState = RecordStop;
    return RecordLoad::Loaded;
}

RecordLoad LoadRecordFile(const QString& path, int slot, QString* failure)
{
    RecordSlot* record = RecordSlotAt(slot);
    if (!record) return RecordLoad::Unreadable;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (failure) *failure = file.errorString();
        MsgBox(file.errorString(), vbCritical);
        return RecordLoad::Unreadable;
    }
    const qint64 length = file.size();
    const QByteArray bytes = file.read(RecordReadLimit);
    const RecordLoad outcome = LoadRecordBytes(bytes, length, *record);
    if (failure) *failure = RecordLoadMessage(outcome);
    tell(outcome);
    if (outcome == RecordLoad::Loaded) {
        record->FileName = path;
        DataSheetDirty = true;
    }
    return outcome;
}

RecordLoad LoadRecord(int slot)
{
    const QString path = OpenFileDialog(RecordDialogRequest(Language));
    if (path.isEmpty()) return RecordLoad::Cancelled;
    return LoadRecordFile(path, slot);
}

QString RecordLoadMessage(RecordLoad outcome)
{
    switch (outcome) {
    case RecordLoad::BadModel: return MsgFileFail;
    case RecordLoad::BadMagic: return MsgFileError;
    case RecordLoad::InvalidChannel: return MsgChannelData;
    default: return {};
    }
}

QString RecordCaption(const RecordSlot& slot)
{
    if (!slot.HasFile || slot.FileName.isEmpty()) return slot.Name;
    return slot.Name + QStringLiteral("  (") + slot.FileName + QLatin1Char(')');
}
