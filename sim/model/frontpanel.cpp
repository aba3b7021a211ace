// :KEY:... — presses of the front-panel keys and turns of its knobs. A knob
// key may carry a count ("... 20" while held): it moves that many steps, and
// a count of 0 or none moves one step.
#include "model/panelactions.h"
#include "model/simtext.h"
#include "model/timeladder.h"
#include "model/triggerfinder.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double PositionStep = 0.04; // a twenty-fifth of a division
constexpr double PositionLimit = 10.0;
constexpr double LevelLimit = 6.0;
constexpr int LongestRepeat = 1000;

int stepCount(const ScpiCommand& command)
{
    bool ok = false;
    const int count = command.argument.toInt(&ok);
    return ok && count > 0 ? std::min(count, LongestRepeat) : 1;
}

// +1 for "..._INC", -1 for "..._DEC", 0 otherwise.
int direction(const QByteArray& key)
{
    return key.endsWith("_INC") ? 1 : key.endsWith("_DEC") ? -1 : 0;
}

void voltsKnob(SimState& state, int channel, int steps)
{
    ChannelState& settings = state.channels[channel];
    settings.scale = state.panel.fineVolts[channel] ? fineVoltStep(settings.scale, steps)
                                                    : coarseVoltStep(settings.scale, steps);
}

bool channelKey(const QByteArray& key, const ScpiCommand& command, SimState& state)
{
    if (key.size() < 3 || !key.startsWith("CH") || key[2] < '1' || key[2] > '4') return false;
    const int channel = key[2] - '1';
    const QByteArray action = key.mid(3);
    ChannelState& settings = state.channels[channel];
    const int steps = direction(key) * stepCount(command);
    if (action.isEmpty()) {
        settings.display = true;
        state.panel.activeChannel = channel;
    } else if (action.startsWith("_VOLT")) {
        if (steps == 0)
            state.panel.fineVolts[channel] = !state.panel.fineVolts[channel];
        else
            voltsKnob(state, channel, steps);
    } else if (action.startsWith("_POS")) {
        settings.position =
            steps == 0 ? 0.0
                       : std::clamp(settings.position + steps * PositionStep, -PositionLimit, PositionLimit);
    } else {
        return false;
    }
    return true;
}

// The off key: the active channel goes off, the next shown one becomes active.
void channelOff(SimState& state)
{
    PanelState& panel = state.panel;
    state.channels[panel.activeChannel].display = false;
    for (int i = 1; i <= Channels; ++i) {
        const int next = (panel.activeChannel + i) % Channels;
        if (state.channels[next].display) {
            panel.activeChannel = next;
            return;
        }
    }
}

TimeWindow& knobWindow(SimState& state)
{
    return state.trigger.mode == TriggerType::Alternation ? currentAltWindow(state) : state.timebase.main;
}

bool timeKey(const QByteArray& key, const ScpiCommand& command, SimState& state)
{
    TimeWindow& window = knobWindow(state);
    const int steps = direction(key) * stepCount(command);
    if (key == "TIME_INC" || key == "TIME_DEC") {
        const double longest =
            state.timebase.format == TimeFormat::YT ? LongestYtTimeScale : LongestTimeScale;
        window.scale = std::min(timeScaleStep(window.scale, steps), longest);
    } else if (key == "TIME_POS_INC" || key == "TIME_POS_DEC") {
        window.offset += steps * window.scale / 25;
    } else if (key == "TIME_POS_Z") {
        window.offset = 0.0;
    } else {
        return key == "TIME_Z"; // window zoom is not modelled
    }
    return true;
}

void levelKnob(SimState& state, int steps)
{
    TriggerSource source = TriggerSource::Channel1;
    double* level = activeLevel(state, source);
    const double scale = sourceScale(state, source);
    if (!level || scale == 0.0) return;
    const double position = int(source) < Channels ? state.channels[int(source)].position : 0.0;
    const double divisions =
        std::clamp(*level / scale + position + steps * PositionStep, -LevelLimit, LevelLimit);
    *level = (divisions - position) * scale;
}

void cycleSweep(SimState& state)
{
    if (Sweep* sweep = activeSweepSetting(state))
        *sweep = *sweep == Sweep::Auto     ? Sweep::Normal
                 : *sweep == Sweep::Normal ? Sweep::Single
                                           : Sweep::Auto;
}

void setSweep(SimState& state, Sweep value)
{
    if (Sweep* sweep = activeSweepSetting(state)) *sweep = value;
}

bool triggerKey(const QByteArray& key, const ScpiCommand& command, SimContext& context)
{
    SimState& state = context.state;
    if (key == "TRIG_LEVEL_INC" || key == "TRIG_LEVEL_DEC")
        levelKnob(state, direction(key) * stepCount(command));
    else if (key == "TRIG_LEVEL_Z" || key == "TRIG%50")
        triggerLevelToMiddle(state);
    else if (key == "TRIGFORCE")
        forceTrigger(context);
    else if (key == "TRIG_AUTO")
        setSweep(state, Sweep::Auto);
    else if (key == "TRIG_NORMAL")
        setSweep(state, Sweep::Normal);
    else if (key == "TRIGMODE")
        cycleSweep(state);
    else
        return false;
    return true;
}

bool isMenuKey(const QByteArray& key)
{
    static const QList<QByteArray> menus = {"ACQUIRE",  "CURSOR",   "DISPLAY", "HELP",
                                            "MEASURE",  "MNUTIME",  "REF",     "STORAGE",
                                            "TIMEBASE", "TRIGMENU", "UTILITY", "LA"};
    return menus.contains(key);
}

QByteArray lockSetting(const ScpiCommand& command, SimState& state)
{
    if (command.query) return state.keyLocked ? "ENABLE\n" : "DISABLE\n";
    if (command.upperArgument == "ENABLE" || command.upperArgument == "DISABLE")
        state.keyLocked = command.upperArgument == "ENABLE";
    return {};
}

void panelKey(const QByteArray& key, const ScpiCommand& command, SimContext& context)
{
    SimState& state = context.state;
    if (key == "RUN")
        state.running = !state.running;
    else if (key == "AUTO")
        autoset(context);
    else if (key == "SINGLE")
        singleSweep(state);
    else if (key == "MATH")
        state.math.display = !state.math.display;
    else if (key == "MNUOFF")
        state.display.menu = false;
    else if (isMenuKey(key))
        state.display.menu = true;
    else if (!channelKey(key, command, state) && !timeKey(key, command, state))
        triggerKey(key, command, context);
}

} // namespace

bool keyCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply)
{
    if (command.path.isEmpty() || command.path[0] != "KEY" || command.path.size() > 2) return false;
    if (command.path.size() == 1)
        channelOff(context.state);
    else if (command.path[1] == "LOCK")
        reply = lockSetting(command, context.state);
    else if (!command.query)
        panelKey(command.path[1], command, context);
    return true;
}

bool runCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply)
{
    Q_UNUSED(reply);
    if (command.path.size() != 1 || command.query) return false;
    SimState& state = context.state;
    const QByteArray& word = command.path[0];
    if (word == "RUN")
        state.running = true;
    else if (word == "STOP")
        state.running = false;
    else if (word == "AUTO")
        autoset(context);
    else if (word == "SINGLE")
        singleSweep(state);
    else if (word == "FORCETRIG")
        forceTrigger(context);
    else if (word == "TRIG%50")
        triggerLevelToMiddle(state);
    else
        return false;
    return true;
}
