#include "controller/editapply.h"

#include "controller/ctrllink.h"
#include "controller/ctrlstate.h"
#include "controller/download.h"
#include "controller/editapplytrigger.h"
#include "controller/editfields.h"
#include "controller/fineadjust.h"
#include "link/linkcommands.h"
#include "platform/platform.h"
#include "text/keywords.h"
#include "text/messages.h"
#include "text/treewords.h"
#include "text/valuetext.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int ReadBackPauseMs = 200;
constexpr int FormatPauseMs = 1000;
constexpr int SamplingPauseMs = 50;
constexpr float OffsetLimit = 400000;
constexpr float TimeLimit = 1e20f;

// Compared with the limit in single precision; a value within it is kept whole.
double clamped(const QString& text, float limit)
{
    const double value = Val(text);
    if (float(value) > limit) return limit;
    if (float(value) < -limit) return -limit;
    return value;
}

EditResult applyChannel(const EditTarget& t, const QString& value)
{
    CtrlRecord& r = CtrlData;
    const int n = t.channel;
    const QString head = QStringLiteral(":CHANNEL%1:").arg(n);
    const QString& item = t.item;
    if (item == QLatin1String("Offset")) {
        if (!IsNumberText(value)) {
            MsgBox(MsgNumberOnly, vbExclamation);
            return {EditOutcome::Stays};
        }
        WriteCmd(head + "OFFSET " + GeneralFormat(clamped(value, OffsetLimit)));
        Sleep(ReadBackPauseMs);
        r.ChOffset[n] = VoltText3(AskReply(head + "OFFSET?"));
        return {};
    }
    if (item == QLatin1String("Volt/Div")) {
        CtrlDialogAdjustOK(n - 1, value);
        return {};
    }
    QString* field = EditField(t);
    if (!field) return {};
    *field = value;
    if (item == QLatin1String("Display")) {
        WriteCmd(head + "DISPLAY " + OnOffToWire(value));
        Sleep(ReadBackPauseMs);
        r.ChDisplay[n] = OnOffFromReply(AskReply(head + "DISPLAY?"));
    } else if (item == QLatin1String("BW Limit")) {
        WriteCmd(head + "BWLIMIT " + OnOffToWire(value));
    } else if (item == QLatin1String("Invert")) {
        WriteCmd(head + "INVERT " + OnOffToWire(value));
    } else if (item == QLatin1String("Coupling")) {
        WriteCmd(head + "COUPLING " + CouplingToWire(value));
    } else if (item == QLatin1String("Probe")) {
        WriteCmd(head + "PROBE " + value);
        // The instrument rescales both with the probe.
        Sleep(ReadBackPauseMs);
        r.ChVoltDiv[n] = VoltText3(AskReply(head + "SCALE?"));
        r.ChOffset[n] = VoltText3(AskReply(head + "OFFSET?"));
    }
    return {};
}

// A delay as the instrument takes it; false (with the message) when not a number.
bool delayWire(const QString& value, QString& wire)
{
    double seconds = 0;
    if (!EditTimeNumber(value, seconds)) return false;
    wire = TimeWireExponent(ExactTimeWireText(seconds));
    return true;
}

void selectAltWindow(int w)
{
    WriteCmd(QStringLiteral(":TRIGGER:ALTERNATION:CURRentSOURce SOURce") + QChar(u'A' + w));
}

EditResult applyTimeBase(const EditTarget& t, const QString& value)
{
    CtrlRecord& r = CtrlData;
    const QString alt = QStringLiteral(":TRIGGER:ALTERNATION:");
    if (t.altWindow >= 0) {
        const bool b = t.altWindow == 1;
        selectAltWindow(t.altWindow);
        Sleep(ReadBackPauseMs);
        if (t.sub == QLatin1String("Time/Div")) {
            WriteCmd(alt + "TIMESCALE " + TimeWireExponent(value));
            Sleep(ReadBackPauseMs);
            (b ? r.TimeDivB : r.TimeDivA) = TimeText4(AskReply(alt + "TIMESCALE?"));
        } else {
            QString wire;
            if (!delayWire(value, wire)) return {EditOutcome::Stays};
            WriteCmd(alt + "TIMEOFFSET " + wire);
            Sleep(ReadBackPauseMs);
            (b ? r.TimeDelayB : r.TimeDelayA) = TimeText5(AskReply(alt + "TIMEOFFSET?"));
        }
        return {};
    }
    if (t.item == QLatin1String("Time/Div")) {
        r.TimeDiv = value;
        WriteCmd(":TIMEBASE:SCALE " + TimeWireExponent(value));
        Sleep(ReadBackPauseMs);
        r.TimeDiv = TimeText4(AskReply(":TIMEBASE:SCALE?"));
    } else if (t.item == QLatin1String("Delay")) {
        QString wire;
        if (!delayWire(value, wire)) return {EditOutcome::Stays};
        AskReply(":TIMEBASE:SCALE?");
        WriteCmd(":TIMEBASE:OFFSET " + wire);
        Sleep(ReadBackPauseMs);
        GetTimeBaseParameter();
    } else if (t.item == QLatin1String("Format")) {
        r.TimeFormat = value;
        WriteCmd(":TIMEBASE:FORMAT " + TimeFormatToWire(value));
        Sleep(FormatPauseMs);
        r.TimeFormat = TimeFormatFromReply(AskReply(":TIMEBASE:FORMAT?"));
        if (r.TimeFormat == QLatin1String("X-Y"))
            for (int n = 1; n <= 4; ++n)
                r.ChDisplay[n] = ValueWord(n <= 2 ? QStringLiteral("ON") : QStringLiteral("OFF"));
        r.TimeDiv = TimeText4(AskReply(":TIMEBASE:SCALE?"));
        r.AcqType = AcquisitionFromReply(AskReply(":ACQUIRE:TYPE?"));
        return {EditOutcome::Stored, true};
    }
    return {};
}

EditResult applyAcquireDisplay(const EditTarget& t, const QString& value)
{
    CtrlRecord& r = CtrlData;
    QString* field = EditField(t);
    if (!field) return {};
    *field = value;
    const QString& item = t.item;
    if (item == QLatin1String("Sampling Mode")) {
        WriteCmd(":ACQUIRE:MODE " + SamplingToWire(value));
        Sleep(SamplingPauseMs);
        r.AcqMode = SamplingFromReply(AskReply(":ACQUIRE:MODE?"));
        r.AcqType = AcquisitionFromReply(AskReply(":ACQUIRE:TYPE?"));
        return {EditOutcome::Stored, true};
    }
    if (item == QLatin1String("Acquisition")) {
        WriteCmd(":ACQUIRE:TYPE " + AcquisitionToWire(value));
        r.AcqType = AcquisitionFromReply(AskReply(":ACQUIRE:TYPE?"));
        return {EditOutcome::Stored, true, true};
    }
    if (item == QLatin1String("Averages")) WriteCmd(":ACQUIRE:AVERAGES " + value);
    if (item == QLatin1String("Type")) WriteCmd(":DISPLAY:TYPE " + DisplayTypeToWire(value));
    if (item == QLatin1String("Persist")) WriteCmd(":DISPLAY:PERSIST " + OnOffToWire(value));
    if (item == QLatin1String("Grid")) WriteCmd(":DISPLAY:GRID " + GridToWire(value));
    return {};
}

EditResult applyRunning(const QString& value)
{
    CtrlRecord& r = CtrlData;
    r.RunStop = value;
    WriteCmd(RunStateToWire(value));
    if (AskReply(":TIMEBASE:FORMAT?") != QLatin1String("ROLL"))
        r.TimeDiv = TimeText4(AskReply(":TIMEBASE:SCALE?"));
    return {};
}

} // namespace

bool EditTimeNumber(const QString& value, double& seconds)
{
    if (!IsNumberText(value)) {
        MsgBox(MsgNumberOnly, vbExclamation);
        return false;
    }
    seconds = clamped(value, TimeLimit);
    return true;
}

QString TimeWireExponent(const QString& text)
{
    const QString upper = text.toUpper();
    static const char* prefixes[][2] = {{"NS", "e-9"}, {"US", "e-6"}, {"MS", "e-3"}};
    for (const auto& [unit, exponent] : prefixes)
        if (upper.endsWith(QLatin1String(unit))) return upper.chopped(2) + QLatin1String(exponent);
    return upper.isEmpty() ? upper : upper.chopped(1) + QStringLiteral("e0");
}

bool IsNumberText(const QString& text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(value);
}

EditResult ApplyEdit(const EditTarget& t, const QString& value)
{
    if (AskReply(QStringLiteral("*IDN?")).isEmpty()) return {EditOutcome::LinkGone};
    InstallLevelQuery();
    EditResult result;
    if (t.channel >= 1)
        result = applyChannel(t, value);
    else if (t.group == QLatin1String("Running Control") && t.item == QLatin1String("Run|Stop"))
        result = applyRunning(value);
    else if (t.group == QLatin1String("Time Base"))
        result = applyTimeBase(t, value);
    else if (t.group == QLatin1String("Trigger"))
        result = ApplyTriggerEdit(t, value);
    else if (t.group == QLatin1String("Acquire") || t.group == QLatin1String("Display"))
        result = applyAcquireDisplay(t, value);
    if (result.outcome == EditOutcome::Stored) CtrlDirty = true;
    return result;
}
