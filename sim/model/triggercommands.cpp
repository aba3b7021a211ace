// :TRIGGER:... — the trigger type, the settings all plain types share, and
// the settings of each type under its own piece (":TRIGGER:EDGE:LEVEL").
#include "model/simcontext.h"
#include "model/simtext.h"
#include "model/triggerlevels.h"

namespace {

using Field = QByteArray;

QByteArray sourceSetting(const ScpiCommand& command, TriggerSource& source, bool lineAllowed)
{
    TriggerSource requested = source;
    const QByteArray reply = keywordSetting(command, requested, Keywords::triggerSource());
    if (lineAllowed || requested != TriggerSource::AcLine) source = requested;
    return reply;
}

QByteArray sweepSetting(const ScpiCommand& command, Sweep& sweep)
{
    return keywordSetting(command, sweep, Keywords::sweep());
}

bool edgeField(const Field& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    EdgeTrigger& edge = state.trigger.edge;
    if (field == "SOURCE")
        reply = sourceSetting(command, edge.source, true);
    else if (field == "SLOPE")
        reply = keywordSetting(command, edge.slope, Keywords::edgeSlope());
    else if (field == "SWEEP")
        reply = sweepSetting(command, edge.sweep);
    else if (field == "LEVEL")
        reply = levelSetting(command, state, edge.source, edge.level);
    else
        return false;
    return true;
}

bool pulseField(const Field& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    PulseTrigger& pulse = state.trigger.pulse;
    if (field == "SOURCE")
        reply = sourceSetting(command, pulse.source, false);
    else if (field == "MODE")
        reply = keywordSetting(command, pulse.mode, Keywords::pulseMode());
    else if (field == "WIDTH" || field == "TIME")
        reply = conditionTimeSetting(command, pulse.width);
    else if (field == "SWEEP")
        reply = sweepSetting(command, pulse.sweep);
    else if (field == "LEVEL")
        reply = levelSetting(command, state, pulse.source, pulse.level);
    else
        return false;
    return true;
}

bool videoField(const Field& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    VideoTrigger& video = state.trigger.video;
    if (field == "SOURCE")
        reply = sourceSetting(command, video.source, false);
    else if (field == "POLARITY")
        reply = keywordSetting(command, video.positive, Keywords::polarity());
    else if (field == "MODE")
        reply = keywordSetting(command, video.sync, Keywords::videoSync());
    else if (field == "STANDARD")
        reply = videoStandardSetting(command, video.standard, video.line);
    else if (field == "LINE")
        reply = videoLineSetting(command, video.standard, video.line);
    else if (field == "SWEEP")
        reply = sweepSetting(command, video.sweep);
    else if (field == "LEVEL")
        reply = levelSetting(command, state, video.source, video.level);
    else
        return false;
    return true;
}

bool slopeField(const Field& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    SlopeTrigger& slope = state.trigger.slope;
    if (field == "SOURCE")
        reply = sourceSetting(command, slope.source, false);
    else if (field == "MODE")
        reply = keywordSetting(command, slope.mode, Keywords::pulseMode());
    else if (field == "TIME")
        reply = conditionTimeSetting(command, slope.time);
    else if (field == "WINDOW")
        reply = keywordSetting(command, slope.window, Keywords::slopeWindow());
    else if (field == "LEVELA")
        reply = levelSetting(command, state, slope.source, slope.levelA);
    else if (field == "LEVELB")
        reply = levelSetting(command, state, slope.source, slope.levelB);
    else if (field == "SWEEP")
        reply = sweepSetting(command, slope.sweep);
    else
        return false;
    return true;
}

bool durationField(const Field& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    DurationTrigger& duration = state.trigger.duration;
    if (field == "TIME")
        reply = conditionTimeSetting(command, duration.time);
    else if (field == "QUALIFIER")
        reply = keywordSetting(command, duration.qualifier, Keywords::qualifier());
    else if (field == "SWEEP")
        reply = sweepSetting(command, duration.sweep);
    else
        return false;
    return true;
}

bool sharedField(const Field& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    TriggerState& trigger = state.trigger;
    if (field == "HOLDOFF") {
        reply = holdoffSetting(command, trigger.holdoff);
    } else if (field == "COUPLING") {
        reply = keywordSetting(command, trigger.coupling, Keywords::triggerCoupling());
        if (trigger.coupling == TriggerCoupling::LF)
            trigger.hfReject = false; // the two filters exclude each other
    } else if (field == "SENSITIVITY") {
        reply = sensitivitySetting(command, trigger.sensitivity);
    } else if (field == "HFRE") {
        bool hf = trigger.hfReject;
        reply = flagSetting(command, hf);
        if (trigger.coupling != TriggerCoupling::LF) trigger.hfReject = hf;
    } else {
        return false;
    }
    return true;
}

QByteArray modeSetting(const ScpiCommand& command, SimState& state)
{
    const QByteArray reply = keywordSetting(command, state.trigger.mode, Keywords::triggerType());
    if (state.trigger.mode == TriggerType::Alternation)
        state.timebase.format = TimeFormat::YT; // two time bases need Y-T
    return reply;
}

QByteArray statusQuery(const ScpiCommand& command, const SimState& state)
{
    if (!command.query) return {};
    return state.running ? "RUN\n" : "STOP\n";
}

// The fields under a type's piece; the slope type also takes its fields
// behind a second ":SLOPE" (":TRIGGER:SLOPE:SLOPE:MODE").
bool typeField(const QList<QByteArray>& rest, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    const QByteArray& type = rest[0];
    Field field;
    if (rest.size() == 2)
        field = rest[1];
    else if (rest.size() == 3 && type == "SLOPE" && rest[1] == "SLOPE")
        field = rest[2];
    else
        return false;
    if (sharedField(field, command, state, reply)) return true;
    if (type == "EDGE") return edgeField(field, command, state, reply);
    if (type == "PULSE") return pulseField(field, command, state, reply);
    if (type == "VIDEO") return videoField(field, command, state, reply);
    if (type == "SLOPE") return slopeField(field, command, state, reply);
    if (type == "DURATION") return durationField(field, command, state, reply);
    return false;
}

} // namespace

bool triggerCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply)
{
    if (command.path.isEmpty() || command.path[0] != "TRIGGER" || command.path.size() < 2) return false;
    SimState& state = context.state;
    const QList<QByteArray> rest = command.path.mid(1);
    if (rest.size() == 1) {
        if (rest[0] == "MODE")
            reply = modeSetting(command, state);
        else if (rest[0] == "STATUS")
            reply = statusQuery(command, state);
        else
            return sharedField(rest[0], command, state, reply);
        return true;
    }
    if (rest[0] == "PATTERN") return patternCommand(command, state, reply);
    if (rest[0] == "ALTERNATION") return alternationCommand(command, context, reply);
    return typeField(rest, command, state, reply);
}
