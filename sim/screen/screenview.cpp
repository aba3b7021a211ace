#include "screen/screenview.h"

#include "model/keywords.h"
#include "model/mathblocks.h"
#include "model/simtext.h"
#include "model/triggerfinder.h"
#include "screen/screencodes.h"

#include <cmath>

namespace {

QVector<int> codesOf(const QByteArray& bytes, int from, int count)
{
    QVector<int> codes;
    for (int i = from; i < from + count && i < bytes.size(); ++i)
        codes.append(quint8(bytes[i]));
    return codes;
}

void fillChannel(ScreenTrace& trace, const SimState& state, const Frame& frame, int channel)
{
    const ChannelState& settings = state.channels[channel];
    const QByteArray codes = channelScreenCodes(state, frame, channel);
    trace.on = settings.display && !codes.isEmpty();
    trace.codes = codesOf(codes, 0, ScreenPointCount);
    if (codes.size() > ScreenPointCount) trace.peakCodes = codesOf(codes, ScreenPointCount, ScreenPointCount);
    trace.position = int(std::lround(settings.position * 25));
    trace.legend =
        QStringLiteral("CH%1 ").arg(channel + 1) + engineeringText(settings.scale * settings.probe, "V");
}

void fillMath(ScreenTrace& trace, const SimState& state, const Frame& frame)
{
    trace.on = state.math.display;
    if (!trace.on) return;
    if (state.math.operation == MathOperation::Fft) {
        trace.codes = codesOf(fftScreenCodes(state, frame), 0, ScreenPointCount);
        trace.legend = QStringLiteral("FFT ") + engineeringText(fftHorizontalScale(state), "Hz");
    } else {
        trace.codes = codesOf(mathScreenCodes(state, frame), 0, ScreenPointCount);
        trace.legend = QStringLiteral("MATH ") + engineeringText(mathScale(state), "V");
    }
}

QString runText(const SimState& state, const Frame& frame, bool waiting)
{
    if (!state.running) return "STOP";
    if (waiting) return "WAIT";
    return frame.triggered ? "T'D" : "AUTO";
}

void fillTrigger(ScreenPicture& picture, const SimState& state)
{
    const TimeWindow& window = state.timebase.main;
    const double column = 150 - window.offset / window.scale * 25;
    picture.triggerColumn = column >= 0 && column <= 299 ? int(std::lround(column)) : -1;
    const TriggerSource source = state.trigger.edge.source;
    if (state.trigger.mode != TriggerType::Edge || int(source) >= Channels) {
        picture.triggerText = QString::fromLatin1(keywordText(Keywords::triggerType(), state.trigger.mode));
        return;
    }
    const ChannelState& channel = state.channels[int(source)];
    picture.triggerRow = channelCode(channel, state.trigger.edge.level);
    picture.triggerText = QStringLiteral("CH%1 ").arg(int(source) + 1) +
                          engineeringText(state.trigger.edge.level * channel.probe, "V");
}

} // namespace

ScreenPicture screenPictureOf(const SimState& state, const Frame& frame, bool waiting)
{
    ScreenPicture picture = defaultScreenPicture();
    for (int channel = 0; channel < Channels; ++channel)
        fillChannel(picture.traces[channel], state, frame, channel);
    fillMath(picture.traces[4], state, frame);
    picture.runText = runText(state, frame, waiting);
    picture.timeText = QStringLiteral("M ") + engineeringText(state.timebase.main.scale, "s");
    picture.delayText = QStringLiteral("D ") + engineeringText(state.timebase.main.offset, "s");
    fillTrigger(picture, state);
    picture.splitScreen = state.trigger.mode == TriggerType::Alternation;
    picture.xyMode = state.timebase.format == TimeFormat::XY;
    return picture;
}
