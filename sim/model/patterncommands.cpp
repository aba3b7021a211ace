// :TRIGGER:PATTERN:... — the pattern takes numbers ("value,mask,ext" and an
// optional "input,direction" edge term) and is answered in words:
// "value,mask,EXT|EXT5,NONE|input|EXT,POSITIVE|NEGATIVE".
#include "model/simcontext.h"
#include "model/simtext.h"
#include "model/triggerlevels.h"

namespace {

constexpr int AllInputs = (1 << PatternInputs) - 1;

std::optional<int> integerField(const QByteArray& text, int low, int high)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    if (!ok || value < low || value > high) return std::nullopt;
    return value;
}

void setPattern(const ScpiCommand& command, PatternTrigger& pattern)
{
    const QList<QByteArray> fields = command.fields();
    if (fields.size() != 3 && fields.size() != 5) return;
    const std::optional<int> value = integerField(fields[0], 0, AllInputs);
    const std::optional<int> mask = integerField(fields[1], 0, AllInputs);
    const std::optional<int> ext = integerField(fields[2], 0, 1);
    const std::optional<int> edge = fields.size() == 5 ? integerField(fields[3], 0, PatternInputs - 1) : -1;
    const std::optional<int> rising = fields.size() == 5 ? integerField(fields[4], 0, 1) : 1;
    if (!value || !mask || !ext || !edge || !rising) return;
    pattern.value = *value & *mask;
    pattern.mask = *mask;
    pattern.extDiv5 = *ext == 1;
    pattern.edgeInput = *edge;
    pattern.edgeRising = *rising == 1;
}

QByteArray patternReply(const PatternTrigger& pattern)
{
    const QByteArray edge = pattern.edgeInput < 0                    ? QByteArray("NONE")
                            : pattern.edgeInput == PatternInputs - 1 ? QByteArray("EXT")
                                                                     : QByteArray::number(pattern.edgeInput);
    return QByteArray::number(pattern.value) + ',' + QByteArray::number(pattern.mask) + ',' +
           (pattern.extDiv5 ? "EXT5" : "EXT") + ',' + edge + ',' +
           (pattern.edgeRising ? "POSITIVE" : "NEGATIVE") + '\n';
}

// Input 0..3 for the channels, 4 for the external input.
std::optional<int> patternInput(const QByteArray& word)
{
    if (word == "EXT" || word == "EXT5") return PatternInputs - 1;
    return channelWord(word);
}

TriggerSource inputSource(const PatternTrigger& pattern, int input)
{
    if (input < Channels) return TriggerSource(input);
    return pattern.extDiv5 ? TriggerSource::Ext5 : TriggerSource::Ext;
}

// Levels come as "volts,source" (and "source,volts" is taken as well).
QByteArray patternLevel(const ScpiCommand& command, SimState& state)
{
    PatternTrigger& pattern = state.trigger.pattern;
    ScpiCommand level = command;
    std::optional<int> input;
    if (command.query) {
        input = patternInput(command.upperArgument);
    } else {
        const QList<QByteArray> fields = command.fields();
        if (fields.size() != 2) return {};
        const bool sourceFirst = !patternInput(fields[1]);
        input = patternInput(fields[sourceFirst ? 0 : 1]);
        level.argument = fields[sourceFirst ? 1 : 0];
    }
    if (!input) return {};
    return levelSetting(level, state, inputSource(pattern, *input), pattern.levels[*input]);
}

} // namespace

bool patternCommand(const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    if (command.path.size() != 3) return false;
    PatternTrigger& pattern = state.trigger.pattern;
    const QByteArray& field = command.path[2];
    if (field == "PATTERN") {
        if (command.query)
            reply = patternReply(pattern);
        else
            setPattern(command, pattern);
    } else if (field == "LEVEL") {
        reply = patternLevel(command, state);
    } else if (field == "SWEEP") {
        reply = keywordSetting(command, pattern.sweep, Keywords::sweep());
    } else {
        return false;
    }
    return true;
}
