#include "files/rcdwriter.h"

#include "files/filebytes.h"

#include <algorithm>

namespace {

// The first channel's record has three spare bytes after its flag, the
// others one, so the records don't share a pitch.
struct ChannelOffsets {
    int on, scale, shift;
};
constexpr ChannelOffsets ChannelFields[4] = {{60, 64, 68}, {70, 72, 76}, {78, 80, 84}, {86, 88, 92}};

bool hasSecond(const RcdContent& content)
{
    return !content.secondFrames.isEmpty();
}

int firstBlockFrames(const RcdContent& content)
{
    const int count = static_cast<int>(content.frames.size());
    return hasSecond(content) ? std::min(count, RcdFramesBeforeSecond) : count;
}

int secondCount(const RcdContent& content)
{
    return static_cast<int>(content.secondFrames.size()) * RcdFrameSize;
}

// A file with a second block is never shorter than the reader's minimum.
int frameAreaSize(const RcdContent& content)
{
    if (hasSecond(content)) return std::max(RcdSecondStart + secondCount(content), RcdSecondMinimum);
    return firstBlockFrames(content) * RcdFrameSize;
}

std::int16_t lastFrameOf(const RcdContent& content)
{
    if (content.lastFrame != 0) return content.lastFrame;
    return static_cast<std::int16_t>(content.firstFrame + firstBlockFrames(content) - 1);
}

void putChannel(QByteArray& out, int channel, const RcdChannel& record)
{
    const ChannelOffsets& at = ChannelFields[channel];
    putLe<quint8>(out, at.on, record.on ? 1 : 0);
    putLe<qint32>(out, at.scale, record.scale);
    putLe<qint16>(out, at.shift, record.shift);
}

void putHeader(QByteArray& out, const RcdContent& content)
{
    putLe<quint16>(out, 0, content.magic);
    putText(out, 4, 20, content.model);
    putLe<qint32>(out, 44, secondCount(content));
    putLe<qint32>(out, 48, content.source);
    putLe<qint32>(out, 52, content.sourceAlt);
    putLe<qint16>(out, 56, content.firstFrame);
    putLe<qint16>(out, 58, lastFrameOf(content));
    for (int n = 0; n < 4; ++n)
        putChannel(out, n, content.channels[n]);
    putLe<qint64>(out, 96, content.timeDiv);
    putLe<qint64>(out, 104, content.delay);
    putLe<quint8>(out, 116, hasSecond(content) ? 1 : 0);
}

void putFrames(QByteArray& out, int start, const QVector<QByteArray>& frames, int count)
{
    for (int k = 0; k < count; ++k)
        putBytes(out, start + k * RcdFrameSize, RcdFrameSize, frames[k]);
}

} // namespace

QByteArray writeRcd(const RcdContent& content)
{
    QByteArray out(RcdHeaderSize + frameAreaSize(content), '\0');
    putHeader(out, content);
    putFrames(out, RcdHeaderSize, content.frames, firstBlockFrames(content));
    putFrames(out, RcdHeaderSize + RcdSecondStart, content.secondFrames,
              static_cast<int>(content.secondFrames.size()));
    return out;
}
