#include "files/rcdcontent.h"

#include "files/filesampler.h"
#include "model/triggerfinder.h"

#include <algorithm>
#include <cmath>

namespace {

int firstShownAfter(const SimState& state, int channel)
{
    for (int n = channel + 1; n < Channels; ++n)
        if (state.channels[n].display) return n;
    return -1;
}

int sourceOf(const SimState& state)
{
    const int first = firstShownAfter(state, -1);
    return first < 0 ? 0 : first;
}

// The partner of the second block: the next channel shown, else the next channel.
int secondOf(const SimState& state, int source)
{
    const int next = firstShownAfter(state, source);
    return next < 0 ? (source + 1) % Channels : next;
}

// The recording keeps the instrument sweeping, whatever its sweep mode.
QVector<Frame> sweep(const SimState& state, int count)
{
    SimState running = state;
    Acquisition acquisition(running);
    QVector<Frame> frames;
    for (int k = 0; k < count; ++k) {
        running.running = true;
        acquisition.startReading(running);
        frames.append(acquisition.frame());
    }
    return frames;
}

QVector<QByteArray> rowsOf(const SimState& state, const QVector<Frame>& frames, int channel)
{
    QVector<QByteArray> rows;
    for (const Frame& frame : frames)
        rows.append(screenRows(state, frame, channel));
    return rows;
}

void fillChannels(RcdContent& content, const SimState& state)
{
    for (int n = 0; n < Channels; ++n) {
        const ChannelState& channel = state.channels[n];
        content.channels[n] = {channel.display, microvoltsPerDivision(channel), positionCodes(channel)};
    }
}

} // namespace

RcdContent rcdContentOf(const SimState& state, const RcdRequest& request)
{
    RcdContent content;
    content.model = request.model;
    const int source = sourceOf(state);
    content.source = content.sourceAlt = source;
    fillChannels(content, state);
    const TimeWindow& window = timeWindowOf(state, timeBaseOfChannel(state, source));
    content.timeDiv = std::llround(window.scale * 1e12);
    content.delay = std::llround(window.offset * 1e12);
    const QVector<Frame> frames = sweep(state, std::max(request.frames, 0));
    content.frames = rowsOf(state, frames, source);
    if (request.secondBlock) content.secondFrames = rowsOf(state, frames, secondOf(state, source));
    return content;
}
