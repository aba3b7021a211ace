// :TIMEBASE:... — format, time a division and delay. Time scales snap to
// the 1-2-5 ladder; anything further off is refused.
#include "model/simcontext.h"
#include "model/simtext.h"
#include "model/timeladder.h"

#include <cmath>

namespace {
constexpr double DelayDivisions = 500.0; // the furthest delay, in divisions either way
} // namespace

QByteArray timeScaleSetting(const ScpiCommand& command, const SimState& state, TimeWindow& window)
{
    if (command.query) return sciReply(window.scale);
    const std::optional<double> value = parseNumber(command.argument.split(',').value(0));
    const std::optional<double> snapped = value ? snapTimeScale(*value) : std::nullopt;
    const double longest = state.timebase.format == TimeFormat::YT ? LongestYtTimeScale : LongestTimeScale;
    if (snapped && *snapped <= longest * 1.001) window.scale = *snapped;
    return {};
}

QByteArray timeOffsetSetting(const ScpiCommand& command, TimeWindow& window)
{
    if (command.query) return sciReply(window.offset);
    const std::optional<double> value = parseNumber(command.argument.split(',').value(0));
    if (value && std::fabs(*value) <= DelayDivisions * window.scale) window.offset = *value;
    return {};
}

namespace {

void applyFormat(SimState& state, TimeFormat format)
{
    state.timebase.format = format;
    if (format == TimeFormat::YT)
        state.timebase.main.scale = std::min(state.timebase.main.scale, LongestYtTimeScale);
    if (format != TimeFormat::YT && state.trigger.mode == TriggerType::Alternation)
        state.trigger.mode = TriggerType::Edge; // two time bases need Y-T
    if (format == TimeFormat::XY) {
        for (int channel = 0; channel < Channels; ++channel)
            state.channels[channel].display = channel < 2;
    }
}

QByteArray formatSetting(const ScpiCommand& command, SimState& state)
{
    if (command.query) return keywordText(Keywords::timeFormat(), state.timebase.format) + '\n';
    if (const std::optional<TimeFormat> format = findKeyword(Keywords::timeFormat(), command.upperArgument))
        applyFormat(state, *format);
    return {};
}

} // namespace

TimeWindow& currentAltWindow(SimState& state)
{
    return state.trigger.alternation.currentIsB ? state.timebase.windowB : state.timebase.windowA;
}

bool timebaseCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply)
{
    if (command.path.size() != 2 || command.path[0] != "TIMEBASE") return false;
    SimState& state = context.state;
    const QByteArray& field = command.path[1];
    if (field == "FORMAT")
        reply = formatSetting(command, state);
    else if (field == "SCALE")
        reply = timeScaleSetting(command, state, state.timebase.main);
    else if (field == "OFFSET")
        reply = timeOffsetSetting(command, state.timebase.main);
    else if (field == "TIMESCALE")
        reply = timeScaleSetting(command, state, currentAltWindow(state));
    else if (field == "TIMEOFFSET")
        reply = timeOffsetSetting(command, currentAltWindow(state));
    else
        return false;
    return true;
}
