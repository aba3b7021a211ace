#include "controller/editfields.h"

#include "controller/ctrlstate.h"
#include "text/keywords.h"

#include <utility>

namespace {

using Fields = std::initializer_list<std::pair<const char*, QString*>>;

QString* pick(const QString& name, Fields fields)
{
    for (const auto& [english, field] : fields)
        if (name == QLatin1String(english)) return field;
    return nullptr;
}

QString* channelField(const QString& item, int n)
{
    CtrlRecord& r = CtrlData;
    return pick(item, {{"Display", &r.ChDisplay[n]},
                       {"Volt/Div", &r.ChVoltDiv[n]},
                       {"Offset", &r.ChOffset[n]},
                       {"Coupling", &r.ChCoupling[n]},
                       {"BW Limit", &r.ChBwLimit[n]},
                       {"Probe", &r.ChProbe[n]},
                       {"Invert", &r.ChInvert[n]}});
}

QString* timeBaseField(const EditTarget& t)
{
    CtrlRecord& r = CtrlData;
    if (t.altWindow >= 0) {
        const bool b = t.altWindow == 1;
        return pick(t.sub, {{"Time/Div", b ? &r.TimeDivB : &r.TimeDivA},
                            {"Delay", b ? &r.TimeDelayB : &r.TimeDelayA}});
    }
    return pick(t.item, {{"Time/Div", &r.TimeDiv},
                         {"Delay", &r.TimeDelay},
                         {"Format", &r.TimeFormat},
                         {"Memory Size", &r.MemorySize}});
}

QString* altField(const QString& item, int w)
{
    CtrlRecord& r = CtrlData;
    if (item == QLatin1String("Trig type")) return w == 0 ? &r.AltTypeA : &r.AltTypeB;
    const QString type = AltWireType(w);
    if (type == QLatin1String("EDGE")) {
        AltEdgeFields& e = r.AltEdge[w];
        return pick(item, {{"Slope", &e.Slope},
                           {"Coupling", &e.Coupling},
                           {"Level", &e.Level},
                           {"Sensitivity", &e.Sensitivity},
                           {"Holdoff", &e.Holdoff}});
    }
    if (type == QLatin1String("PULSE")) {
        AltPulseFields& p = r.AltPulse[w];
        return pick(item, {{"Pulse mode", &p.Mode},
                           {"Pulse width", &p.Width},
                           {"Coupling", &p.Coupling},
                           {"Level", &p.Level},
                           {"Sensitivity", &p.Sensitivity},
                           {"Holdoff", &p.Holdoff}});
    }
    if (type == QLatin1String("VIDEO")) {
        AltVideoFields& v = r.AltVideo[w];
        return pick(item, {{"Polarity", &v.Polarity},
                           {"Sync", &v.Sync},
                           {"Line number", &v.Line},
                           {"Video Standard", &v.Standard},
                           {"Level", &v.Level},
                           {"Sensitivity", &v.Sensitivity},
                           {"Holdoff", &v.Holdoff}});
    }
    AltSlopeFields& s = r.AltSlope[w];
    return pick(item, {{"Slope mode", &s.Mode},
                       {"Slope time", &s.Time},
                       {"Slope Window", &s.Window},
                       {"Coupling", &s.Coupling},
                       {"LevelA", &s.LevelA},
                       {"LevelB", &s.LevelB},
                       {"Sensitivity", &s.Sensitivity},
                       {"Holdoff", &s.Holdoff}});
}

// The items whose field follows the plain trigger type.
QString* typedField(const QString& item, const QString& type)
{
    CtrlRecord& r = CtrlData;
    const auto byType = [&type](QString* edge, QString* pulse, QString* slope, QString* video,
                                QString* pattern) {
        return type == QLatin1String("EDGE")      ? edge
               : type == QLatin1String("PULSE")   ? pulse
               : type == QLatin1String("SLOPE")   ? slope
               : type == QLatin1String("VIDEO")   ? video
               : type == QLatin1String("PATTERN") ? pattern
                                                  : nullptr;
    };
    if (item == QLatin1String("Source"))
        return byType(&r.EdgeSource, &r.PulseSource, &r.SlopeSource, &r.VideoSource, nullptr);
    if (item == QLatin1String("Mode"))
        return type == QLatin1String("DURATION")
                   ? &r.DurationSweep
                   : byType(&r.EdgeSweep, &r.PulseSweep, &r.SlopeSweep, &r.VideoMode, &r.PatternSweep);
    if (item == QLatin1String("Coupling"))
        return byType(&r.EdgeCoupling, &r.PulseCoupling, &r.SlopeCoupling, nullptr, &r.PatternCoupling);
    if (item == QLatin1String("HF")) return byType(&r.EdgeHf, &r.PulseHf, nullptr, nullptr, &r.PatternHf);
    if (item == QLatin1String("Level"))
        return byType(&r.EdgeLevel, &r.PulseLevel, nullptr, &r.VideoLevel, nullptr);
    if (item == QLatin1String("Sensitivity"))
        return byType(&r.EdgeSensitivity, &r.PulseSensitivity, &r.SlopeSensitivity, &r.VideoSensitivity,
                      &r.PatternSensitivity);
    return nullptr;
}

QString* triggerField(const EditTarget& t)
{
    CtrlRecord& r = CtrlData;
    if (t.altWindow >= 0) return altField(t.sub, t.altWindow);
    if (t.item == QLatin1String("Code") && t.input >= 0)
        return TriggerWireType() == QLatin1String("DURATION") ? &r.DurationCode[t.input]
                                                              : &r.PatternCode[t.input];
    if (t.item == QLatin1String("Level") && t.input >= 0) return &r.PatternLevel[t.input];
    if (QString* field = typedField(t.item, TriggerWireType())) return field;
    return pick(t.item, {{"Method", &r.TrigMethod},
                         {"Alt Channel", &r.AltChannel},
                         {"Holdoff", &r.Holdoff},
                         {"Slope", &r.EdgeSlope},
                         {"Polarity", &r.VideoPolarity},
                         {"Sync", &r.VideoSync},
                         {"Line number", &r.VideoLine},
                         {"Video Standard", &r.VideoStandard},
                         {"Pulse mode", &r.PulseMode},
                         {"Pulse width", &r.PulseWidth},
                         {"Slope mode", &r.SlopeMode},
                         {"Slope time", &r.SlopeTime},
                         {"Slope Window", &r.SlopeWindow},
                         {"LevelA", &r.SlopeLevelA},
                         {"LevelB", &r.SlopeLevelB},
                         {"Qualifier", &r.DurationQualifier},
                         {"Duration time", &r.DurationTime},
                         {"ChannelA", &r.AltSourceA},
                         {"ChannelB", &r.AltSourceB}});
}

} // namespace

QString TriggerWireType()
{
    return TriggerTypeToWire(CtrlData.TrigMethod);
}

QString AltWireType(int window)
{
    return TriggerTypeToWire(window == 1 ? CtrlData.AltTypeB : CtrlData.AltTypeA);
}

const QString& EditItem(const EditTarget& target)
{
    return target.altWindow >= 0 && target.group == QLatin1String("Trigger") ? target.sub : target.item;
}

QString* EditField(const EditTarget& t)
{
    CtrlRecord& r = CtrlData;
    if (t.channel >= 1 && t.channel <= 4) return channelField(t.item, t.channel);
    if (t.group == QLatin1String("Running Control"))
        return t.item == QLatin1String("Run|Stop") ? &r.RunStop : nullptr;
    if (t.group == QLatin1String("Time Base")) return timeBaseField(t);
    if (t.group == QLatin1String("Trigger")) return triggerField(t);
    if (t.group == QLatin1String("Acquire"))
        return pick(t.item, {{"Sampling Mode", &r.AcqMode},
                             {"Acquisition", &r.AcqType},
                             {"Averages", &r.AcqAverages},
                             {"Intensity", &r.AcqIntensity},
                             {"Anti-aliasing", &r.AcqAntiAlias}});
    if (t.group == QLatin1String("Display"))
        return pick(t.item,
                    {{"Type", &r.DisplayType}, {"Persist", &r.DisplayPersist}, {"Grid", &r.DisplayGrid}});
    return nullptr;
}
