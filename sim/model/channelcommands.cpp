// :CHANNELn:... — the vertical settings of one channel. Scale commands take
// volts at the input (the value before the probe), while queries answer
// displayed volts; offsets are displayed volts both ways.
#include "model/simcontext.h"
#include "model/simtext.h"

#include <cmath>

namespace {

constexpr double LowestScale = 2e-3;
constexpr double HighestScale = 10.0;
constexpr double PositionLimit = 10.0; // divisions either side of the centre

QByteArray scaleSetting(const ScpiCommand& command, ChannelState& channel)
{
    if (command.query) return sciReply(channel.scale * channel.probe);
    const std::optional<double> value = parseNumber(command.argument);
    if (value && *value >= LowestScale * 0.999 && *value <= HighestScale * 1.001) channel.scale = *value;
    return {};
}

QByteArray offsetSetting(const ScpiCommand& command, ChannelState& channel)
{
    const double displayedScale = channel.scale * channel.probe;
    if (command.query) return sciReply(channel.position * displayedScale);
    const std::optional<double> value = parseNumber(command.argument);
    if (value && std::fabs(*value / displayedScale) <= PositionLimit)
        channel.position = *value / displayedScale;
    return {};
}

QByteArray probeSetting(const ScpiCommand& command, ChannelState& channel)
{
    if (command.query) return probeText(channel.probe) + '\n';
    if (const std::optional<double> ratio = probeRatio(command.upperArgument)) channel.probe = *ratio;
    return {};
}

std::optional<int> channelOfPath(const QByteArray& piece)
{
    if (piece.size() == 8 && piece.startsWith("CHANNEL")) return channelWord(piece);
    return std::nullopt;
}

} // namespace

bool channelCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply)
{
    if (command.path.size() != 2) return false;
    const std::optional<int> index = channelOfPath(command.path[0]);
    if (!index) return false;
    ChannelState& channel = context.state.channels[*index];
    const QByteArray& field = command.path[1];
    if (field == "SCALE")
        reply = scaleSetting(command, channel);
    else if (field == "OFFSET")
        reply = offsetSetting(command, channel);
    else if (field == "PROBE")
        reply = probeSetting(command, channel);
    else if (field == "COUPLING")
        reply = keywordSetting(command, channel.coupling, Keywords::channelCoupling());
    else if (field == "BWLIMIT")
        reply = flagSetting(command, channel.bwLimit);
    else if (field == "DISPLAY")
        reply = flagSetting(command, channel.display);
    else if (field == "INVERT")
        reply = flagSetting(command, channel.invert);
    else
        return false;
    return true;
}
