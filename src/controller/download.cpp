#include "controller/download.h"

#include "acquire/operation.h"
#include "controller/ctrlstate.h"
#include "controller/pattern.h"
#include "link/devicefacts.h"
#include "link/linkcommands.h"
#include "platform/platform.h"
#include "text/keywords.h"
#include "text/treewords.h"
#include "text/valuetext.h"

namespace {

double tickStep = 0;

QString ask(const QString& query)
{
    return StripAtLineFeed(AskCmd(query));
}

void tick()
{
    ProgressView& view = Progress();
    view.setBarValue(view.barValue() + tickStep);
    view.refresh();
    DoEvents();
}

// Asks and stores, then ticks.
void askTicked(const QString& query, QString& field, QString (*convert)(const QString&))
{
    field = convert(ask(query));
    tick();
}

// A reply table's conversion into the words of the language in force.
template <QString (*convert)(const QString&, int)> QString inLanguage(const QString& reply)
{
    return convert(reply, Language);
}

QString asIs(const QString& reply)
{
    return reply;
}
QString sensitivityText(const QString& reply)
{
    return FormatMask(Val(reply), QStringLiteral("#0.00")) + QStringLiteral("div");
}

// The scale a trigger source's level is divided by, into scale; false for a
// source that has none (a logic input), which leaves scale as it was.
bool askSourceScale(const QString& source, QString& scale)
{
    for (int n = 1; n <= 4; ++n)
        if (source == QStringLiteral("CHANNEL%1").arg(n)) {
            scale = ask(QStringLiteral(":CHANNEL%1:SCALE?").arg(n));
            return true;
        }
    if (source == QLatin1String("EXT"))
        scale = QStringLiteral("0.2");
    else if (source == QLatin1String("EXT5"))
        scale = QStringLiteral("1");
    else if (source == AcLineText())
        scale = QStringLiteral("0");
    else
        return false;
    return true;
}

// The level of a trigger source: by its scale, or as a logic threshold.
void askLevel(const QString& levelQuery, bool hasScale, const QString& scale, QString& field)
{
    field = hasScale ? LevelDivText(ask(levelQuery), scale)
                     : LaThresholdFromReply(ask(QStringLiteral(":LA:THRESHOLD?")));
    tick();
}

void downloadChannels()
{
    for (int n = 1; n <= 4; ++n) {
        const QString channel = QStringLiteral(":CHANNEL%1:").arg(n);
        askTicked(channel + "PROBE?", CtrlData.ChProbe[n], asIs);
        askTicked(channel + "SCALE?", CtrlData.ChVoltDiv[n], VoltText3);
        askTicked(channel + "OFFSET?", CtrlData.ChOffset[n], VoltText3);
        askTicked(channel + "COUPLING?", CtrlData.ChCoupling[n], inLanguage<CouplingFromReply>);
        askTicked(channel + "BWLIMIT?", CtrlData.ChBwLimit[n], inLanguage<OnOffFromReply>);
        askTicked(channel + "DISPLAY?", CtrlData.ChDisplay[n], inLanguage<OnOffFromReply>);
    }
}

void downloadEdge(QString& scale)
{
    CtrlRecord& r = CtrlData;
    askTicked(":TRIGGER:EDGE:SOURCE?", r.EdgeSource, inLanguage<TriggerSourceFromReply>);
    const bool hasScale = askSourceScale(r.EdgeSource, scale);
    askTicked(":TRIGGER:EDGE:SLOPE?", r.EdgeSlope, inLanguage<EdgeSlopeFromReply>);
    askTicked(":TRIGGER:EDGE:SWEEP?", r.EdgeSweep, inLanguage<SweepFromReply>);
    askTicked(":TRIGGER:COUPLING?", r.EdgeCoupling, inLanguage<CouplingFromReply>);
    askLevel(":TRIGGER:EDGE:LEVEL?", hasScale, scale, r.EdgeLevel);
    askTicked(":TRIGGER:SENSITIVITY?", r.EdgeSensitivity, sensitivityText);
}

void downloadPulse(QString& scale)
{
    CtrlRecord& r = CtrlData;
    askTicked(":TRIGGER:PULSE:SOURCE?", r.PulseSource, asIs);
    const bool hasScale = askSourceScale(r.PulseSource, scale);
    askTicked(":TRIGGER:PULSE:MODE?", r.PulseMode, inLanguage<PulseModeFromReply>);
    askTicked(":TRIGGER:PULSE:WIDTH?", r.PulseWidth, TimeText3);
    askTicked(":TRIGGER:PULSE:SWEEP?", r.PulseSweep, inLanguage<SweepFromReply>);
    askTicked(":TRIGGER:COUPLING?", r.PulseCoupling, inLanguage<CouplingFromReply>);
    askLevel(":TRIGGER:PULSE:LEVEL?", hasScale, scale, r.PulseLevel);
    askTicked(":TRIGGER:SENSITIVITY?", r.PulseSensitivity, sensitivityText);
}

void downloadVideo(QString& scale)
{
    CtrlRecord& r = CtrlData;
    askTicked(":TRIGGER:VIDEO:SOURCE?", r.VideoSource, asIs);
    askSourceScale(r.VideoSource, scale);
    askTicked(":TRIGGER:VIDEO:POLARITY?", r.VideoPolarity, inLanguage<VideoPolarityFromReply>);
    askTicked(":TRIGGER:VIDEO:MODE?", r.VideoSync, inLanguage<VideoSyncFromReply>);
    askTicked(":TRIGGER:VIDEO:LINE?", r.VideoLine, asIs);
    askTicked(":TRIGGER:VIDEO:STANDARD?", r.VideoStandard, asIs);
    r.VideoLevel = LevelDivText(ask(":TRIGGER:VIDEO:LEVEL?"), scale);
    tick();
    askTicked(":TRIGGER:SENSITIVITY?", r.VideoSensitivity, sensitivityText);
}

void downloadPlainTriggers(QString& scale)
{
    CtrlRecord& r = CtrlData;
    askTicked(":TRIGGER:MODE?", r.TrigMethod, inLanguage<TriggerTypeFromReply>);
    askTicked(":TRIGGER:HOLDOFF?", r.Holdoff, TimeText3);
    downloadEdge(scale);
    downloadPulse(scale);
    downloadVideo(scale);
}

void askAlt(const char* query, QString& field, const QString& scale, bool isLevel,
            QString (*convert)(const QString&))
{
    const QString reply = ask(QStringLiteral(":TRIGGER:ALTERNATION") + QLatin1String(query));
    field = isLevel ? LevelDivText(reply, scale) : convert(reply);
}

void downloadAltWindow(int w, QString& type, const QString& scale)
{
    type = TriggerTypeFromReply(ask(":TRIGGER:ALTERNATION:TYPE?"));
    AltEdgeFields& e = CtrlData.AltEdge[w];
    askAlt(":EDGE:SLOPE?", e.Slope, scale, false, inLanguage<EdgeSlopeFromReply>);
    askAlt(":COUPLING?", e.Coupling, scale, false, inLanguage<CouplingFromReply>);
    askAlt(":LEVEL?", e.Level, scale, true, asIs);
    askAlt(":HOLDOFF?", e.Holdoff, scale, false, TimeText3);
    askAlt(":SENSITIVITY?", e.Sensitivity, scale, false, sensitivityText);
    AltPulseFields& p = CtrlData.AltPulse[w];
    askAlt(":PULSE:MODE?", p.Mode, scale, false, inLanguage<PulseModeFromReply>);
    askAlt(":PULSE:TIME?", p.Width, scale, false, TimeText3);
    askAlt(":COUPLING?", p.Coupling, scale, false, inLanguage<CouplingFromReply>);
    askAlt(":LEVEL?", p.Level, scale, true, asIs);
    askAlt(":HOLDOFF?", p.Holdoff, scale, false, TimeText3);
    askAlt(":SENSITIVITY?", p.Sensitivity, scale, false, sensitivityText);
    AltVideoFields& v = CtrlData.AltVideo[w];
    askAlt(":VIDEO:POLARITY?", v.Polarity, scale, false, inLanguage<VideoPolarityFromReply>);
    askAlt(":VIDEO:MODE?", v.Sync, scale, false, inLanguage<VideoSyncFromReply>);
    askAlt(":VIDEO:LINE?", v.Line, scale, false, asIs);
    askAlt(":VIDEO:STANDARD?", v.Standard, scale, false, asIs);
    askAlt(":LEVEL?", v.Level, scale, true, asIs);
    askAlt(":SENSITIVITY?", v.Sensitivity, scale, false, sensitivityText);
    askAlt(":HOLDOFF?", v.Holdoff, scale, false, TimeText3);
}

void currentAltSource(const char* which)
{
    WriteCmd(QStringLiteral(":TRIGGER:ALTERNATION:CURRENTSOURCE SOURCE") + QLatin1String(which));
}

// The alternate sources come back as "CHANNEL1CHANNEL2" and are held as "CH1", "CH2".
void storeAltSources(const QString& reply)
{
    static const char* pairs[][3] = {{"CHANNEL1CHANNEL2", "CH1", "CH2"}, {"CHANNEL1CHANNEL3", "CH1", "CH3"},
                                     {"CHANNEL1CHANNEL4", "CH1", "CH4"}, {"CHANNEL2CHANNEL3", "CH2", "CH3"},
                                     {"CHANNEL2CHANNEL4", "CH2", "CH4"}, {"CHANNEL3CHANNEL4", "CH3", "CH4"}};
    CtrlData.AltSourceA = QStringLiteral("CH1");
    CtrlData.AltSourceB = QStringLiteral("CH2");
    for (const auto& pair : pairs)
        if (reply == QLatin1String(pair[0])) {
            CtrlData.AltSourceA = QLatin1String(pair[1]);
            CtrlData.AltSourceB = QLatin1String(pair[2]);
        }
    CtrlData.AltChannel = CtrlData.AltSourceA + CtrlData.AltSourceB;
}

// The sources are held as "CHn" and looked up as "CHANNELn", so no scale is
// fetched here and the levels keep the scale of the video source.
void downloadAlternate(QString& scale)
{
    CtrlRecord& r = CtrlData;
    currentAltSource("A");
    r.TimeDivA = TimeText4(ask(":TRIGGER:ALTERNATION:TIMESCALE?"));
    r.TimeDelayA = TimeText4(ask(":TRIGGER:ALTERNATION:TIMEOFFSET?"));
    currentAltSource("B");
    r.TimeDivB = TimeText4(ask(":TRIGGER:ALTERNATION:TIMESCALE?"));
    r.TimeDelayB = TimeText4(ask(":TRIGGER:ALTERNATION:TIMEOFFSET?"));
    storeAltSources(ask(":TRIGGER:ALTERNATION:SOURCE?"));
    askSourceScale(r.AltSourceA, scale);
    currentAltSource("A");
    downloadAltWindow(0, r.AltTypeA, scale);
    askSourceScale(r.AltSourceB, scale);
    currentAltSource("B");
    downloadAltWindow(1, r.AltTypeB, scale);
}

void downloadPattern()
{
    CtrlRecord& r = CtrlData;
    ParsePatternString(ask(":TRIGGER:PATTERN:PATTERN?"));
    r.PatternSweep = SweepFromReply(ask(":TRIGGER:PATTERN:SWEEP?"));
    r.PatternCoupling = CouplingFromReply(ask(":TRIGGER:COUPLING?"));
    r.PatternHf = HfRejectFromReply(ask(":TRIGGER:HFRE?"));
    for (int n = 1; n <= 4; ++n) {
        const QString scale = ask(QStringLiteral(":CHANNEL%1:SCALE?").arg(n));
        r.PatternLevel[n - 1] =
            LevelDivText(ask(QStringLiteral(":TRIGGER:PATTERN:LEVEL? CHANNEL%1").arg(n)), scale);
    }
    const QString extScale = r.PatternExtIsDiv5 ? QStringLiteral("1") : QStringLiteral("0.2");
    r.PatternLevel[4] = LevelDivText(ask(":TRIGGER:PATTERN:LEVEL? EXT"), extScale);
    r.PatternSensitivity = sensitivityText(ask(":TRIGGER:SENSITIVITY?"));
}

void altWindowAgain(int w)
{
    CtrlRecord& r = CtrlData;
    // The sources are held as "CH1" and their scale is asked as "CHANNEL1".
    const QString source = w == 0 ? r.AltSourceA : r.AltSourceB;
    QString scale;
    askSourceScale(QStringLiteral("CHANNEL") + source.mid(2), scale);
    currentAltSource(w == 0 ? "A" : "B");
    downloadAltWindow(w, w == 0 ? r.AltTypeA : r.AltTypeB, scale);
}

void downloadAcquireDisplay()
{
    CtrlRecord& r = CtrlData;
    askTicked(":ACQUIRE:MODE?", r.AcqMode, inLanguage<SamplingFromReply>);
    askTicked(":ACQUIRE:TYPE?", r.AcqType, inLanguage<AcquisitionFromReply>);
    askTicked(":ACQUIRE:AVERAGES?", r.AcqAverages, asIs);
    askTicked(":DISPLAY:TYPE?", r.DisplayType, inLanguage<DisplayTypeFromReply>);
    askTicked(":DISPLAY:PERSIST?", r.DisplayPersist, inLanguage<OnOffFromReply>);
    askTicked(":DISPLAY:GRID?", r.DisplayGrid, inLanguage<GridFromReply>);
}

} // namespace

CtrlEvents& CtrlNotifier()
{
    static CtrlEvents events;
    return events;
}

bool DownloadTransfer()
{
    tickStep = 100.0 / (HasLa ? 76 : 66);
    CtrlRecord& r = CtrlData;
    askTicked(":TRIGGER:STATUS?", r.RunStop, inLanguage<RunStateFromReply>);
    askTicked(":TIMEBASE:FORMAT?", r.TimeFormat, TimeFormatFromReply);
    askTicked(":TIMEBASE:SCALE?", r.TimeDiv, TimeText4);
    askTicked(":TIMEBASE:OFFSET?", r.TimeDelay, TimeText4);
    downloadChannels();
    QString scale;
    downloadPlainTriggers(scale);
    downloadAlternate(scale);
    downloadPattern();
    downloadAcquireDisplay();
    Q_EMIT CtrlNotifier().recordChanged();
    return true;
}

void GetTriggerMethod()
{
    QString scale;
    const QString type = TriggerTypeToWire(CtrlData.TrigMethod);
    if (type == QLatin1String("EDGE"))
        downloadEdge(scale);
    else if (type == QLatin1String("PULSE"))
        downloadPulse(scale);
    else if (type == QLatin1String("VIDEO"))
        downloadVideo(scale);
    else if (type == QLatin1String("PATTERN"))
        downloadPattern();
}

void GetTriggerAltTrigType(int channel)
{
    if (channel == 0 || channel == 1) altWindowAgain(channel);
}

void GetTimeBaseParameter()
{
    CtrlData.TimeDelay = TimeText5(ask(":TIMEBASE:OFFSET?"));
}

void InstallDownloadOperation()
{
    SetOperationRoutine(OperationDownload, [](const Operation&) { return DownloadTransfer(); });
}

void AfterDownload()
{
    ClearInvertsAndSpare();
    CtrlDirty = true;
}
