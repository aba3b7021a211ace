#include "controller/editapplytrigger.h"

#include "controller/ctrllink.h"
#include "controller/ctrlstate.h"
#include "controller/download.h"
#include "controller/editfields.h"
#include "controller/pattern.h"
#include "link/linkcommands.h"
#include "platform/platform.h"
#include "text/keywords.h"
#include "text/treewords.h"
#include "text/valuetext.h"

namespace {

constexpr int ReadBackPauseMs = 200;
constexpr int AltSourcePauseMs = 100;
constexpr int AltTimePauseMs = 50;

bool is(const QString& item, const char* english)
{
    return item == QLatin1String(english);
}

// The two alternate sources from a pair text ("CH1CH3"); empty is the first pair.
void setAltPair(const QString& pair)
{
    CtrlRecord& r = CtrlData;
    const QString text = pair.isEmpty() ? QStringLiteral("CH1CH2") : pair;
    if (text.size() == 6 && text.startsWith(QLatin1String("CH")) && text.mid(3, 2) == QLatin1String("CH")) {
        r.AltSourceA = text.left(3);
        r.AltSourceB = text.mid(3);
    }
    r.AltChannel = text;
}

void sendAltPair()
{
    CtrlRecord& r = CtrlData;
    r.AltChannel = r.AltSourceA + r.AltSourceB;
    WriteCmd(":TRIGGER:ALTERNATION:SOURCE " + r.AltChannel);
}

// ChannelA or ChannelB to a channel ("CHANNEL3"); when it meets the other one, the
// other moves on: B forward past A, A back past B, wrapping round the four.
void setAltChannel(bool isA, const QString& channel)
{
    CtrlRecord& r = CtrlData;
    const int chosen = channel.right(1).toInt();
    if (chosen < 1 || chosen > 4) return;
    QString& mine = isA ? r.AltSourceA : r.AltSourceB;
    QString& other = isA ? r.AltSourceB : r.AltSourceA;
    mine = QStringLiteral("CH%1").arg(chosen);
    if (other == mine) other = QStringLiteral("CH%1").arg(isA ? chosen % 4 + 1 : (chosen + 2) % 4 + 1);
    sendAltPair();
}

// A time item checked as a number, sent, and read back as TimeText3.
EditResult sendTime(const QString& command, const QString& query, const QString& value, QString& field)
{
    double seconds = 0;
    if (!EditTimeNumber(value, seconds)) return {EditOutcome::Stays};
    WriteCmd(command + GeneralFormat(ParseTimeText(ExactTimeText(seconds))));
    Sleep(ReadBackPauseMs);
    field = TimeText3(AskReply(query));
    return {};
}

EditResult applyAlt(const EditTarget& t, const QString& value, QString* field)
{
    const QString& item = t.sub;
    const QString alt = QStringLiteral(":TRIGGER:ALTERNATION");
    const bool timed = is(item, "Holdoff") || is(item, "Pulse width") || is(item, "Slope time");
    WriteCmd(alt + ":CURRentSOURce SOURce" + QChar(u'A' + t.altWindow));
    Sleep(timed ? AltTimePauseMs : AltSourcePauseMs);
    if (timed) {
        const QString command = is(item, "Holdoff")       ? alt + ":HOLDOFF"
                                : is(item, "Pulse width") ? alt + ":PULSE:TIME"
                                                          : alt + ":SLOPE:TIME";
        return sendTime(command + ' ', command + '?', value, *field);
    }
    *field = value;
    const QString source = t.altWindow == 0 ? QStringLiteral("CHANNEL1") : QStringLiteral("CHANNEL2");
    if (is(item, "Trig type")) {
        WriteCmd(alt + ":TYPE " + TriggerTypeToWire(value));
        GetTriggerAltTrigType(t.altWindow);
        return {EditOutcome::Stored, true};
    }
    if (is(item, "Slope")) WriteCmd(alt + ":EDGE:SLOPE " + EdgeSlopeToWire(value));
    if (is(item, "Coupling")) WriteCmd(alt + ":COUPLING " + CouplingToWire(value));
    if (is(item, "Level")) WriteCmd(alt + ":LEVEL " + LevelToVolts(value, source));
    if (is(item, "Sensitivity")) WriteCmd(alt + ":SENSITIVITY " + value.chopped(3));
    if (is(item, "Pulse mode")) WriteCmd(alt + ":PULSE:MODE " + PulseModeToWire(value));
    if (is(item, "Polarity")) WriteCmd(alt + ":VIDEO:POLARITY " + VideoPolarityToWire(value));
    if (is(item, "Sync")) WriteCmd(alt + ":VIDEO:MODE " + VideoSyncToWire(value).toUpper());
    if (is(item, "Line number")) WriteCmd(alt + ":VIDEO:LINE " + value);
    if (is(item, "Video Standard")) {
        WriteCmd(alt + ":VIDEO:STANDARD " + VideoStandardToWire(value));
        Sleep(ReadBackPauseMs);
        CtrlData.AltVideo[t.altWindow].Line = AskReply(alt + ":VIDEO:LINE?");
    }
    if (is(item, "Slope mode")) WriteCmd(alt + ":SLOPE:MODE " + SlopeModeToWire(value));
    if (is(item, "Slope Window")) WriteCmd(alt + ":SLOPE:WINDOW " + value);
    if (is(item, "LevelA"))
        WriteCmd(alt + ":SLOPE:LEVELA " + LevelToVolts(value, QStringLiteral("CHANNEL1")));
    if (is(item, "LevelB"))
        WriteCmd(alt + ":SLOPE:LEVELB " + LevelToVolts(value, QStringLiteral("CHANNEL2")));
    return {};
}

// A code row of the pattern: the external inputs exclude each other.
void applyCode(int row, const QString& value)
{
    QString* rows = CtrlData.PatternCode;
    rows[row] = value;
    if ((row == 4 || row == 5) && !IsValueWord(value, QStringLiteral("X"))) rows[9 - row] = ValueWord("X");
    BuildPatternCommand(row);
}

EditResult applyMethod(const QString& value)
{
    CtrlRecord& r = CtrlData;
    r.TrigMethod = value;
    WriteCmd(":TRIGGER:MODE " + TriggerTypeToWire(value));
    if (TriggerWireType() == QLatin1String("ALTERNATION")) {
        GetTriggerAltTrigType(0);
        GetTriggerAltTrigType(1);
        r.TimeFormat = QStringLiteral("Y-T");
    } else {
        GetTriggerMethod();
    }
    return {EditOutcome::Stored, true};
}

} // namespace

EditResult ApplyTriggerEdit(const EditTarget& t, const QString& value)
{
    QString* field = EditField(t);
    if (!field) return {};
    if (t.altWindow >= 0) return applyAlt(t, value, field);
    const QString& item = t.item;
    const QString type = TriggerWireType();
    const QString head = QStringLiteral(":TRIGGER:") + type;
    if (is(item, "Method")) return applyMethod(value);
    if (is(item, "Holdoff")) return sendTime(":TRIGGER:HOLDOFF ", ":TRIGGER:HOLDOFF?", value, *field);
    if (is(item, "Pulse width"))
        return sendTime(":TRIGGER:PULSE:WIDTH ", ":TRIGGER:PULSE:WIDTH?", value, *field);
    if (is(item, "HF")) {
        EditTarget couplingNode = t;
        couplingNode.item = QStringLiteral("Coupling");
        const QString* coupling = EditField(couplingNode);
        if (coupling && IsValueWord(*coupling, QStringLiteral("LF"))) return {};
        *field = value;
        WriteCmd(":TRIGGER:HFRE " + OnOffToWire(value));
        return {};
    }
    if (is(item, "Code")) {
        applyCode(t.input, value);
        return {};
    }
    if (is(item, "Alt Channel")) {
        setAltPair(value);
        sendAltPair();
        return {};
    }
    if (is(item, "ChannelA") || is(item, "ChannelB")) {
        setAltChannel(is(item, "ChannelA"), value);
        return {};
    }
    *field = value;
    if (is(item, "Level") && t.input >= 0) {
        SendPatternLevel(t.input, value);
    } else if (is(item, "Level")) {
        WriteCmd(head + ":LEVEL " + LevelToVolts(value, AskReply(head + ":SOURCE?")));
    } else if (is(item, "Source")) {
        WriteCmd(head + ":SOURCE " + TriggerSourceToWire(value));
    } else if (is(item, "Mode")) {
        WriteCmd(head + ":SWEEP " + SweepToWire(value));
    } else if (is(item, "Coupling")) {
        WriteCmd(":TRIGGER:COUPLING " + CouplingToWire(value));
        EditTarget hf = t;
        hf.item = QStringLiteral("HF");
        if (QString* hfField = EditField(hf); hfField && IsValueWord(value, QStringLiteral("LF")))
            *hfField = ValueWord("OFF");
    } else if (is(item, "Sensitivity")) {
        WriteCmd(":TRIGGER:SENSITIVITY " + value.chopped(3));
    } else if (is(item, "Slope")) {
        WriteCmd(":TRIGGER:EDGE:SLOPE " + EdgeSlopeToWire(value));
    } else if (is(item, "Pulse mode")) {
        WriteCmd(":TRIGGER:PULSE:MODE " + PulseModeToWire(value));
    } else if (is(item, "Polarity")) {
        WriteCmd(":TRIGGER:VIDEO:POLARITY " + VideoPolarityToWire(value));
    } else if (is(item, "Sync")) {
        WriteCmd(":TRIGGER:VIDEO:MODE " + VideoSyncToWire(value).toUpper());
    } else if (is(item, "Line number")) {
        WriteCmd(":TRIGGER:VIDEO:LINE " + value);
    } else if (is(item, "Video Standard")) {
        WriteCmd(":TRIGGER:VIDEO:STANDARD " + VideoStandardToWire(value));
        Sleep(ReadBackPauseMs);
        CtrlData.VideoLine = AskReply(":TRIGGER:VIDEO:LINE?");
    }
    return {};
}
