#include "controller/upload.h"

#include "acquire/operation.h"
#include "controller/ctrllink.h"
#include "controller/ctrlstate.h"
#include "controller/pattern.h"
#include "link/devicefacts.h"
#include "link/linkcommands.h"
#include "platform/platform.h"
#include "text/keywords.h"
#include "text/valuetext.h"

namespace {

double tickStep = 0;

void tick()
{
    ProgressView& view = Progress();
    view.setBarValue(std::min(view.barValue() + tickStep, view.barMaximum()));
    view.refresh();
    DoEvents();
}

void sendTicked(const QString& command)
{
    WriteCmd(command);
    tick();
}

// G(field, parser): the field's value by its parser as a plain number; a text
// that does not parse gives 0.
QString timeNumber(const QString& text)
{
    return GeneralFormat(ParseTimeText(text));
}
QString voltNumber(const QString& text)
{
    return GeneralFormat(ParseVoltText(text));
}

// The level of a plain type is converted against the source the instrument holds now.
QString levelOfSource(const char* type, const QString& level)
{
    const QString source = AskReply(QStringLiteral(":TRIGGER:%1:SOURCE?").arg(QLatin1String(type)));
    return LevelToVolts(level, source);
}

void sendChannels()
{
    const CtrlRecord& r = CtrlData;
    for (int n = 1; n <= 4; ++n) {
        const QString channel = QStringLiteral(":CHANNEL%1:").arg(n);
        // The instrument wants the other channels' offsets after two blanks.
        const QString offsetGap = n > 1 ? QStringLiteral("  ") : QStringLiteral(" ");
        WriteCmd(channel + "PROBE " + r.ChProbe[n]);
        WriteCmd(channel + "SCALE " + voltNumber(r.ChVoltDiv[n]));
        WriteCmd(channel + "OFFSET" + offsetGap + voltNumber(r.ChOffset[n]));
        WriteCmd(channel + "COUPLING " + CouplingToWire(r.ChCoupling[n]));
        WriteCmd(channel + "BWLIMIT " + OnOffToWire(r.ChBwLimit[n]));
        WriteCmd(channel + "DISPLAY " + OnOffToWire(r.ChDisplay[n]));
        Sleep(UploadChannelPauseMs);
        tick();
    }
}

void sendEdge()
{
    const CtrlRecord& r = CtrlData;
    WriteCmd(":TRIGGER:EDGE:SOURCE " + TriggerSourceToWire(r.EdgeSource));
    WriteCmd(":TRIGGER:EDGE:SLOPE " + EdgeSlopeToWire(r.EdgeSlope));
    WriteCmd(":TRIGGER:EDGE:SWEEP " + SweepToWire(r.EdgeSweep));
    WriteCmd(":TRIGGER:COUPLING " + CouplingToWire(r.EdgeCoupling));
    WriteCmd(":TRIGGER:SENSITIVITY " + r.EdgeSensitivity);
    WriteCmd(":TRIGGER:EDGE:LEVEL " + levelOfSource("EDGE", r.EdgeLevel));
}

void sendPulse()
{
    const CtrlRecord& r = CtrlData;
    WriteCmd(":TRIGGER:PULSE:SOURCE " + TriggerSourceToWire(r.PulseSource));
    WriteCmd(":TRIGGER:PULSE:MODE " + PulseModeToWire(r.PulseMode));
    WriteCmd(":TRIGGER:PULSE:WIDTH " + timeNumber(r.PulseWidth));
    WriteCmd(":TRIGGER:PULSE:SWEEP " + SweepToWire(r.PulseSweep));
    WriteCmd(":TRIGGER:COUPLING " + CouplingToWire(r.PulseCoupling));
    WriteCmd(":TRIGGER:SENSITIVITY " + r.PulseSensitivity);
    // The instrument takes this one level command without the colon after TRIGGER.
    WriteCmd(":TRIGGERPULSE:LEVEL " + levelOfSource("PULSE", r.PulseLevel));
}

void sendVideo()
{
    const CtrlRecord& r = CtrlData;
    WriteCmd(":TRIGGER:VIDEO:SOURCE " + TriggerSourceToWire(r.VideoSource));
    WriteCmd(":TRIGGER:VIDEO:POLARITY " + VideoPolarityToWire(r.VideoPolarity));
    WriteCmd(":TRIGGER:VIDEO:MODE " + VideoSyncToWire(r.VideoSync).toUpper());
    WriteCmd(":TRIGGER:VIDEO:STANDARD " + VideoStandardToWire(r.VideoStandard));
    WriteCmd(":TRIGGER:VIDEO:LINE " + r.VideoLine);
    WriteCmd(":TRIGGER:SENSITIVITY " + r.VideoSensitivity);
    WriteCmd(":TRIGGER:VIDEO:LEVEL " + levelOfSource("VIDEO", r.VideoLevel));
}

void sendPattern()
{
    const CtrlRecord& r = CtrlData;
    WriteCmd(":TRIG:PATT:PATT " + BuildPatternString());
    WriteCmd(":TRIGGER:PATTERN:SWEEP " + SweepToWire(r.PatternSweep));
    WriteCmd(":TRIGGER:COUPLING " + CouplingToWire(r.PatternCoupling));
    WriteCmd(":TRIGGER:HFRE " + r.PatternHf);
    WriteCmd(":TRIGGER:HOLDOFF " + timeNumber(r.Holdoff));
    WriteCmd(":TRIGGER:SENSITIVITY " + r.PatternSensitivity);
    for (int input = 0; input < 5; ++input)
        SendPatternLevel(input, r.PatternLevel[input]);
}

// One window's block; its level is always taken against CHANNEL1 (A) or CHANNEL2 (B),
// whichever channels the pair names.
void sendAltWindow(int w, const QString& type)
{
    const CtrlRecord& r = CtrlData;
    const QString alt = QStringLiteral(":TRIGGER:ALTERNATION");
    const QString source = w == 0 ? QStringLiteral("CHANNEL1") : QStringLiteral("CHANNEL2");
    const QString wire = TriggerTypeToWire(type);
    if (wire == QLatin1String("EDGE")) {
        const AltEdgeFields& e = r.AltEdge[w];
        WriteCmd(alt + ":EDGE:SLOPE " + EdgeSlopeToWire(e.Slope));
        WriteCmd(alt + ":COUPLING " + CouplingToWire(e.Coupling));
        WriteCmd(alt + ":LEVEL " + LevelToVolts(e.Level, source));
        WriteCmd(alt + ":SENSITIVITY " + e.Sensitivity);
        WriteCmd(alt + ":HOLDOFF " + timeNumber(e.Holdoff));
    } else if (wire == QLatin1String("PULSE")) {
        const AltPulseFields& p = r.AltPulse[w];
        WriteCmd(alt + ":PULSE:MODE " + PulseModeToWire(p.Mode));
        WriteCmd(alt + ":PULSE:TIME " + timeNumber(p.Width));
        WriteCmd(alt + ":COUPLING " + CouplingToWire(p.Coupling));
        WriteCmd(alt + ":LEVEL " + LevelToVolts(p.Level, source));
        WriteCmd(alt + ":SENSITIVITY " + p.Sensitivity);
        WriteCmd(alt + ":HOLDOFF " + timeNumber(p.Holdoff));
    } else if (wire == QLatin1String("VIDEO")) {
        const AltVideoFields& v = r.AltVideo[w];
        WriteCmd(alt + ":VIDEO:POLARITY " + VideoPolarityToWire(v.Polarity));
        WriteCmd(alt + ":VIDEO:MODE " + VideoSyncToWire(v.Sync).toUpper());
        WriteCmd(alt + ":VIDEO:STANDARD " + VideoStandardToWire(v.Standard));
        WriteCmd(alt + ":VIDEO:LINE " + v.Line);
        WriteCmd(alt + ":SENSITIVITY " + v.Sensitivity);
        WriteCmd(alt + ":HOLDOFF " + timeNumber(v.Holdoff));
        WriteCmd(alt + ":LEVEL " + LevelToVolts(v.Level, source));
    }
}

void sendAlternative()
{
    const CtrlRecord& r = CtrlData;
    const QString alt = QStringLiteral(":TRIGGER:ALTERNATION");
    WriteCmd(alt + ":SOURCE " + r.AltChannel);
    WriteCmd(alt + ":TIMESCALE " + timeNumber(r.TimeDivA) + ",SOURCEA");
    WriteCmd(alt + ":TIMEOFFSET " + timeNumber(r.TimeDelayA) + ",SOURCEA");
    WriteCmd(alt + ":TIMESCALE " + timeNumber(r.TimeDivB) + ",SOURCEB");
    WriteCmd(alt + ":TIMEOFFSET " + timeNumber(r.TimeDelayB) + ",SOURCEB");
    WriteCmd(alt + ":CURRENTSOURCE SOURCEA");
    WriteCmd(alt + ":TYPE " + TriggerTypeToWire(r.AltTypeA));
    sendAltWindow(0, r.AltTypeA);
    WriteCmd(alt + ":CURRENTSOURCE SOURCEB");
    WriteCmd(alt + ":TYPE " + TriggerTypeToWire(r.AltTypeB));
    sendAltWindow(1, r.AltTypeB);
}

// The block of the present trigger type; SLOPE and DURATION send nothing of their own.
void sendTriggerBlock()
{
    const QString type = TriggerTypeToWire(CtrlData.TrigMethod);
    if (type == QLatin1String("EDGE"))
        sendEdge();
    else if (type == QLatin1String("PULSE"))
        sendPulse();
    else if (type == QLatin1String("VIDEO"))
        sendVideo();
    else if (type == QLatin1String("PATTERN"))
        sendPattern();
    else if (type == QLatin1String("ALTERNATION"))
        sendAlternative();
}

} // namespace

bool UploadTransfer()
{
    InstallLevelQuery();
    tickStep = 100.0 / (HasLa ? 32 : 29);
    const CtrlRecord& r = CtrlData;
    sendTicked(RunStateToWire(r.RunStop));
    sendTicked(":TIMEBASE:FORMAT " + TimeFormatToWire(r.TimeFormat));
    // The instrument changes its mode before it takes a time base.
    Sleep(UploadFormatPauseMs);
    sendTicked(":TIMEBASE:SCALE " + timeNumber(r.TimeDiv));
    Sleep(UploadScalePauseMs);
    sendTicked(":TIMEBASE:OFFSET " + timeNumber(r.TimeDelay));
    sendChannels();
    sendTicked(":TRIGGER:MODE " + TriggerTypeToWire(r.TrigMethod));
    sendTicked(":TRIGGER:HOLDOFF " + timeNumber(r.Holdoff));
    sendTriggerBlock();
    sendTicked(":ACQUIRE:MODE " + SamplingToWire(r.AcqMode));
    sendTicked(":ACQUIRE:TYPE " + AcquisitionToWire(r.AcqType));
    sendTicked(":ACQUIRE:AVERAGES " + r.AcqAverages);
    sendTicked(":DISPLAY:TYPE " + DisplayTypeToWire(r.DisplayType));
    sendTicked(":DISPLAY:PERSIST " + OnOffToWire(r.DisplayPersist));
    sendTicked(":DISPLAY:GRID " + GridToWire(r.DisplayGrid));
    return true;
}

void InstallUploadOperation()
{
    SetOperationRoutine(OperationUpload, [](const Operation&) { return UploadTransfer(); });
}

void BeforeUpload()
{
    ClearInvertsAndSpare();
}
