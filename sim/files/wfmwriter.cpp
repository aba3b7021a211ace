#include "files/wfmwriter.h"

#include "files/filebytes.h"

#include <algorithm>

namespace {

constexpr int ChannelTable = 68;
constexpr int ChannelRecordSize = 24;
constexpr int TimeBaseA = 164;
constexpr int TimeBaseB = 268;
constexpr int EdgeFileSize = kWfmHeaderSize + 4 * WfmBlockSize;

bool isAlternation(const WfmContent& content)
{
    return content.triggerKind == kWfmTriggerAlternation;
}

// The instrument's deepest memory; a larger count in the header is written
// as it is, but the blocks stop there.
constexpr int MaxPitch = 0x80000;

int alternationPitch(const WfmContent& content)
{
    return std::clamp(content.timeBaseA.sampleCount, 0, MaxPitch);
}

int fileSize(const WfmContent& content)
{
    if (isAlternation(content)) return kWfmAlternationStart + 4 * alternationPitch(content);
    return EdgeFileSize;
}

void putChannel(QByteArray& out, int channel, const WfmChannel& record)
{
    const int at = ChannelTable + channel * ChannelRecordSize;
    putLe<qint32>(out, at, record.scaleDisplay);
    putLe<qint16>(out, at + 4, record.shiftDisplay);
    putLe<quint8>(out, at + 14, record.enabled ? 1 : 0);
    putLe<qint32>(out, at + 16, record.scaleMeasured);
    putLe<qint16>(out, at + 20, record.shiftMeasured);
}

// Time base A keeps its sample count apart from the rest (offset 60), and
// the extra time sits between its rate and its start time.
void putTimeBase(QByteArray& out, int at, const WfmTimeBase& base)
{
    putLe<qint64>(out, at, base.timeDiv);
    putLe<qint64>(out, at + 8, base.delay);
    putFloatLe(out, at + 16, base.sampleRate);
    putLe<qint64>(out, at + 28, base.startTime);
}

void putHeader(QByteArray& out, const WfmContent& content)
{
    putLe<quint16>(out, 0, content.magic);
    putText(out, 4, 20, content.model);
    putLe<quint8>(out, 52, content.longMemory ? 1 : 0);
    putLe<qint32>(out, 56, content.rollPosition);
    putLe<qint32>(out, 60, content.timeBaseA.sampleCount);
    for (int n = 0; n < 4; ++n)
        putChannel(out, n, content.channels[n]);
    putTimeBase(out, TimeBaseA, content.timeBaseA);
    putLe<qint64>(out, 184, content.extraTime);
    putLe<quint8>(out, 200, content.triggerKind);
    putLe<quint8>(out, 202, content.triggerSourceA);
    putLe<quint8>(out, 232, content.triggerSourceB);
    putLe<qint32>(out, TimeBaseB, content.timeBaseB.sampleCount);
    putTimeBase(out, TimeBaseB + 4, content.timeBaseB);
    putLe<quint8>(out, 308, static_cast<quint8>(content.timeMode));
    putLe<quint8>(out, 402, content.peakFlags);
    putLe<qint32>(out, 404, content.acquireMode);
}

// With long memory a pair shares one block: the channel that is on fills it
// (the first of the pair when both or neither are).
bool ownsBlock(const WfmContent& content, int channel)
{
    if (!content.longMemory || isAlternation(content)) return true;
    const int first = channel & ~1;
    const bool firstOn = content.channels[first].enabled;
    const bool secondOn = content.channels[first + 1].enabled;
    return (channel == first) == (firstOn || !secondOn);
}

} // namespace

WfmBlock wfmBlockOf(const WfmContent& content, int channel)
{
    if (isAlternation(content))
        return {kWfmAlternationStart + channel * alternationPitch(content), alternationPitch(content)};
    if (content.longMemory) return {kWfmHeaderSize + (channel / 2) * 2 * WfmBlockSize, 2 * WfmBlockSize};
    return {kWfmHeaderSize + channel * WfmBlockSize, WfmBlockSize};
}

QByteArray writeWfm(const WfmContent& content)
{
    QByteArray out(fileSize(content), '\0');
    putHeader(out, content);
    for (int n = 0; n < 4; ++n) {
        if (!ownsBlock(content, n)) continue;
        const WfmBlock block = wfmBlockOf(content, n);
        putBytes(out, block.offset, block.size, content.channels[n].samples);
    }
    return out;
}
