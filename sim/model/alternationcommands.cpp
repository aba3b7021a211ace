// :TRIGGER:ALTERNATION:... — two channels, each with its own trigger and
// time window. Most settings address the source chosen by
// :CURRENTSOURCE (SOURCEA or SOURCEB).
#include "model/simcontext.h"
#include "model/simtext.h"
#include "model/triggerlevels.h"

#include <QRegularExpression>

namespace {

// "CH1CH2", "CHAN1CHAN2", "CHANNEL1CHANNEL2" and the other five pairs.
std::optional<std::pair<int, int>> channelPair(const QByteArray& upperWord)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?:CH|CHAN|CHANNEL)([1-4])(?:CH|CHAN|CHANNEL)([1-4])$"));
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(upperWord));
    if (!match.hasMatch()) return std::nullopt;
    const int first = match.captured(1).toInt() - 1;
    const int second = match.captured(2).toInt() - 1;
    if (first >= second) return std::nullopt;
    return std::make_pair(first, second);
}

QByteArray pairReply(const AlternationTrigger& alt)
{
    return "CHANNEL" + QByteArray::number(alt.channelA + 1) + "CHANNEL" +
           QByteArray::number(alt.channelB + 1) + '\n';
}

// A pair sets the two channels; a single channel selects the source it
// belongs to (odd channels count as A, even ones as B when not in the pair).
QByteArray sourceSetting(const ScpiCommand& command, AlternationTrigger& alt)
{
    if (command.query) return pairReply(alt);
    if (const auto pair = channelPair(command.upperArgument)) {
        alt.channelA = pair->first;
        alt.channelB = pair->second;
    } else if (const std::optional<int> channel = channelWord(command.upperArgument)) {
        alt.currentIsB = *channel == alt.channelB || (*channel != alt.channelA && *channel % 2 == 1);
    }
    return {};
}

std::optional<bool> sourceWord(const QByteArray& upperWord)
{
    if (upperWord == "SOURCEA" || upperWord == "A") return false;
    if (upperWord == "SOURCEB" || upperWord == "B") return true;
    return std::nullopt;
}

QByteArray currentSourceSetting(const ScpiCommand& command, AlternationTrigger& alt)
{
    if (command.query) return alt.currentIsB ? "SOURCEB\n" : "SOURCEA\n";
    if (const std::optional<bool> isB = sourceWord(command.upperArgument)) alt.currentIsB = *isB;
    return {};
}

// ":TIMESCALE 1e-3,SOURCEB" and ":TIMESCALE? SOURCEB" name their window.
TimeWindow& namedWindow(const ScpiCommand& command, SimState& state)
{
    const QList<QByteArray> fields = command.fields();
    const std::optional<bool> isB = sourceWord(fields.value(command.query ? 0 : 1));
    if (!isB) return currentAltWindow(state);
    return *isB ? state.timebase.windowB : state.timebase.windowA;
}

bool sourceField(const QByteArray& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    AlternationTrigger& alt = state.trigger.alternation;
    AltSourceTrigger& source = alt.sources[alt.currentIsB ? 1 : 0];
    const TriggerSource channel = TriggerSource(alt.currentIsB ? alt.channelB : alt.channelA);
    if (field == "TYPE")
        reply = keywordSetting(command, source.type, Keywords::altTriggerType());
    else if (field == "EDGE:SLOPE")
        reply = keywordSetting(command, source.slope, Keywords::edgeSlope());
    else if (field == "COUPLING")
        reply = keywordSetting(command, source.coupling, Keywords::triggerCoupling());
    else if (field == "LEVEL")
        reply = levelSetting(command, state, channel, source.level);
    else if (field == "HOLDOFF")
        reply = holdoffSetting(command, source.holdoff);
    else if (field == "SENSITIVITY")
        reply = sensitivitySetting(command, source.sensitivity);
    else if (field == "PULSE:MODE")
        reply = keywordSetting(command, source.pulseMode, Keywords::pulseMode());
    else if (field == "PULSE:TIME" || field == "PULSE:WIDTH")
        reply = conditionTimeSetting(command, source.pulseTime);
    else if (field == "VIDEO:POLARITY")
        reply = keywordSetting(command, source.videoPositive, Keywords::polarity());
    else if (field == "VIDEO:MODE")
        reply = keywordSetting(command, source.videoSync, Keywords::videoSync());
    else if (field == "VIDEO:LINE")
        reply = videoLineSetting(command, source.videoStandard, source.videoLine);
    else if (field == "VIDEO:STANDARD")
        reply = videoStandardSetting(command, source.videoStandard, source.videoLine);
    else if (field == "SLOPE:MODE")
        reply = keywordSetting(command, source.slopeMode, Keywords::pulseMode());
    else if (field == "SLOPE:TIME")
        reply = conditionTimeSetting(command, source.slopeTime);
    else if (field == "SLOPE:WINDOW")
        reply = keywordSetting(command, source.slopeWindow, Keywords::slopeWindow());
    else if (field == "SLOPE:LEVELA")
        reply = levelSetting(command, state, channel, source.slopeLevelA);
    else if (field == "SLOPE:LEVELB")
        reply = levelSetting(command, state, channel, source.slopeLevelB);
    else
        return false;
    return true;
}

} // namespace

bool alternationCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply)
{
    SimState& state = context.state;
    const QByteArray field = command.path.mid(2).join(':');
    if (field == "SOURCE")
        reply = sourceSetting(command, state.trigger.alternation);
    else if (field == "CURRENTSOURCE")
        reply = currentSourceSetting(command, state.trigger.alternation);
    else if (field == "TIMESCALE")
        reply = timeScaleSetting(command, state, namedWindow(command, state));
    else if (field == "TIMEOFFSET")
        reply = timeOffsetSetting(command, namedWindow(command, state));
    else
        return sourceField(field, command, state, reply);
    return true;
}
