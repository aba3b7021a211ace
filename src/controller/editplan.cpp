#include "controller/editplan.h"

#include "acquire/operation.h"
#include "controller/ctrllink.h"
#include "controller/ctrlstate.h"
#include "controller/download.h"
#include "controller/editfields.h"
#include "link/devicefacts.h"
#include "link/linkcommands.h"
#include "platform/platform.h"
#include "text/keywords.h"
#include "text/messages.h"
#include "text/steplists.h"
#include "text/treewords.h"
#include "text/valuetext.h"

std::function<void()> EditorDownload = [] {
    InstallDownloadOperation();
    RunReadingFrame({OperationDownload});
    AfterDownload();
};

namespace {

constexpr int ActionPauseMs = 2000;

QString fieldText(const EditTarget& t)
{
    const QString* field = EditField(t);
    return field ? *field : QString();
}

QStringList words(std::initializer_list<const char*> english, WordSense sense = WordSense::Plain)
{
    QStringList list;
    for (const char* word : english)
        list << ValueWord(QString::fromLatin1(word), Language, sense);
    return list;
}

QStringList plain(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list << QString::fromLatin1(text);
    return list;
}

QStringList counted(int from, int to, const QString& suffix = {})
{
    QStringList list;
    for (int i = from; i <= to; ++i)
        list << QString::number(i) + suffix;
    return list;
}

QStringList sourceList(bool edge, bool pulse)
{
    QStringList list = plain({"CHANNEL1", "CHANNEL2", "CHANNEL3", "CHANNEL4", "EXT", "EXT5"});
    if (edge) list << AcLineText();
    // The logic inputs as trigger sources (AddLaSource).
    if (HasLa && (edge || pulse))
        for (int bit = 0; bit < 16; ++bit)
            list << QStringLiteral("D%1").arg(bit);
    return list;
}

// The sweep and the level of the present type after ":TRIG%50".
void setTriggerToHalf()
{
    WriteCmd(QStringLiteral(":TRIG%50"));
    CtrlRecord& r = CtrlData;
    const QString type = TriggerWireType();
    const auto levelOf = [](const QString& source, const QString& levelQuery) {
        QString scale = QStringLiteral("0");
        for (int n = 1; n <= 4; ++n)
            if (source == QStringLiteral("CHANNEL%1").arg(n))
                scale = AskReply(QStringLiteral(":CHANNEL%1:SCALE?").arg(n));
        if (source == QLatin1String("EXT")) scale = QStringLiteral("0.2");
        if (source == QLatin1String("EXT5")) scale = QStringLiteral("1");
        return LevelDivText(AskReply(levelQuery), scale);
    };
    if (type == QLatin1String("EDGE") || type == QLatin1String("PULSE") || type == QLatin1String("VIDEO")) {
        const QString head = QStringLiteral(":TRIGGER:") + type;
        QString& source = type == QLatin1String("EDGE")    ? r.EdgeSource
                          : type == QLatin1String("PULSE") ? r.PulseSource
                                                           : r.VideoSource;
        QString& level = type == QLatin1String("EDGE")    ? r.EdgeLevel
                         : type == QLatin1String("PULSE") ? r.PulseLevel
                                                          : r.VideoLevel;
        source = TriggerSourceFromReply(AskReply(head + ":SOURCE?"));
        level = levelOf(TriggerSourceToWire(source), head + ":LEVEL?");
    } else if (type == QLatin1String("ALTERNATION")) {
        for (int w = 0; w < 2; ++w) {
            WriteCmd(QStringLiteral(":TRIGGER:ALTERNATION:CURRENTSOURCE SOURCE") + QChar(u'A' + w));
            const QString source = w == 0 ? r.AltSourceA : r.AltSourceB;
            EditTarget level;
            level.group = QStringLiteral("Trigger");
            level.altWindow = w;
            level.sub = QStringLiteral("Level");
            if (QString* field = EditField(level))
                *field = levelOf(QStringLiteral("CHANNEL") + source.mid(2), ":TRIGGER:ALTERNATION:LEVEL?");
        }
    }
}

// The Running Control actions; Run|Stop opens a list.
EditPlan planRunning(const EditTarget& t)
{
    const QString& item = t.item;
    if (item == QLatin1String("Run|Stop"))
        return {EditShape::List, t.caption, words({"RUN", "STOP"}), {}, false};
    if (item == QLatin1String("Auto Set") || item == QLatin1String("Default")) {
        WriteCmd(item == QLatin1String("Default") ? QStringLiteral("*RST") : QStringLiteral(":AUTO"));
        Sleep(ActionPauseMs);
        EditorDownload();
    } else if (item == QLatin1String("Set Trig to 50%")) {
        setTriggerToHalf();
    } else if (item == QLatin1String("Force Trigger")) {
        WriteCmd(QStringLiteral(":FORCETRIG"));
    } else if (item == QLatin1String("Single Trigger")) {
        WriteCmd(QStringLiteral(":KEY:SINGLE"));
    }
    return {};
}

EditPlan planChannel(const EditTarget& t)
{
    const QString& item = t.item;
    if (item == QLatin1String("Volt/Div")) return {EditShape::Adjust, t.caption, {}, {}, false};
    if (item == QLatin1String("Offset"))
        return {EditShape::Number,
                t.caption,
                {},
                GeneralFormat(ParseVoltText(CtrlData.ChOffset[t.channel])),
                false};
    if (item == QLatin1String("Coupling"))
        return {EditShape::List, t.caption, words({"DC", "AC", "GND"}), {}, false};
    if (item == QLatin1String("Probe"))
        return {EditShape::List,
                t.caption,
                plain({"0.001X", "0.01X", "0.1X", "1X", "2X", "5X", "10X", "20X", "50X", "100X", "200X",
                       "500X", "1000X"}),
                {},
                false};
    if (item == QLatin1String("Display") || item == QLatin1String("BW Limit") ||
        item == QLatin1String("Invert"))
        return {EditShape::List, t.caption, words({"ON", "OFF"}), {}, false};
    return {};
}

EditPlan planTimeBase(const EditTarget& t)
{
    const QString& item = t.altWindow >= 0 ? t.sub : t.item;
    if (item == QLatin1String("Memory Size")) {
        MsgBox(MsgQueryOnly, vbExclamation);
        return {};
    }
    if (item == QLatin1String("Time/Div"))
        return {EditShape::List, t.caption, SetCtrlDialogTimeDivNum(BandwidthClass), {}, false};
    if (item == QLatin1String("Delay"))
        return {EditShape::Number, t.caption, {}, TimeTextToExponent(fieldText(t)), false};
    if (item == QLatin1String("Format"))
        return {EditShape::List, t.caption, plain({"Y-T", "X-Y", "Roll"}), {}, false};
    return {};
}

EditPlan planTrigger(const EditTarget& t)
{
    const QString& item = EditItem(t);
    const QString type = t.altWindow >= 0 ? AltWireType(t.altWindow) : TriggerWireType();
    const auto list = [&t](QStringList items) {
        return EditPlan{EditShape::List, t.caption, items, {}, false};
    };
    const auto number = [&t](const QString& value) {
        return EditPlan{EditShape::Number, t.caption, {}, TimeTextToExponent(value), false};
    };
    if (t.item == QLatin1String("Code")) return {EditShape::Pattern, t.caption, {}, {}, false};
    if (item == QLatin1String("Method")) {
        QStringList methods = words({"EDGE", "PULSE", "VIDEO", "PATTERN", "ALTERNATIVE"});
        if (HasLa) methods << words({"PATTERN", "DURATION"});
        return list(methods);
    }
    if (item == QLatin1String("Source"))
        return list(sourceList(type == QLatin1String("EDGE"), type == QLatin1String("PULSE")));
    if (item == QLatin1String("Mode")) return list(words({"AUTO", "NORMAL", "SINGLE"}));
    if (item == QLatin1String("HF")) return list(words({"ON", "OFF"}));
    if (item == QLatin1String("Coupling")) return list(words({"DC", "AC", "LF"}));
    if (item == QLatin1String("Level") || item == QLatin1String("LevelA") || item == QLatin1String("LevelB"))
        return list(SetCtrlDialogTrigLevelNum());
    if (item == QLatin1String("Sensitivity")) return list(SetCtrlDialogTrigSensitivityNum());
    if (item == QLatin1String("Holdoff") || item == QLatin1String("Pulse width") ||
        item == QLatin1String("Slope time"))
        return number(fieldText(t));
    if (item == QLatin1String("Slope"))
        return list(t.altWindow >= 0 ? words({"RISING", "FALLING"})
                                     : words({"RISING", "FALLING", "ALTERNATION"}));
    if (item == QLatin1String("Polarity")) return list(words({"NEGATIVE", "POSITIVE"}));
    if (item == QLatin1String("Sync")) return list(words({"ALLlines", "LINE", "ODDfield", "EVENfield"}));
    if (item == QLatin1String("Line number")) {
        const QString standard =
            t.altWindow >= 0 ? CtrlData.AltVideo[t.altWindow].Standard : CtrlData.VideoStandard;
        return list(counted(1, standard == QLatin1String("NTSC") ? 525 : 625));
    }
    if (item == QLatin1String("Video Standard")) return list(plain({"NTSC", "PAL/SECAM"}));
    if (item == QLatin1String("Pulse mode"))
        return list(
            words({"+Greater Than", "+Less Than", "+Equal", "-Greater Than", "-Less Than", "-Equal"}));
    if (item == QLatin1String("ChannelA") || item == QLatin1String("ChannelB"))
        return list(plain({"CHANNEL1", "CHANNEL2", "CHANNEL3", "CHANNEL4"}));
    if (item == QLatin1String("Alt Channel")) {
        EditPlan plan = list(plain({"CH1CH2", "CH1CH3", "CH1CH4", "CH2CH3", "CH2CH4", "CH3CH4"}));
        plan.editable = true;
        plan.value = CtrlData.AltChannel;
        return plan;
    }
    if (item == QLatin1String("Trig type")) return list(words({"EDGE", "PULSE", "VIDEO"}));
    if (item == QLatin1String("Slope mode"))
        return list(words({"+Less Than", "+Greater Than", "+Equal", "-Less Than", "-Greater Than", "-Equal"},
                          WordSense::SlopeMode));
    if (item == QLatin1String("Slope Window")) return list(plain({"PA", "PB", "PAB", "NA", "NB", "NAB"}));
    return {};
}

EditPlan planAcquire(const EditTarget& t)
{
    const QString& item = t.item;
    const auto list = [&t](QStringList items) {
        return EditPlan{EditShape::List, t.caption, items, {}, false};
    };
    if (item == QLatin1String("Sampling Mode")) return list(words({"EQUAL_TIME", "REAL_TIME"}));
    // This build offers ON twice.
    if (item == QLatin1String("Anti-aliasing")) return list(words({"ON", "ON"}));
    if (item == QLatin1String("Intensity")) return list(counted(1, 100, QStringLiteral("%")));
    if (item == QLatin1String("Acquisition")) return list(words({"NORMAL", "AVERAGE", "PEAKDETECT"}));
    if (item == QLatin1String("Averages") && IsValueWord(CtrlData.AcqType, QStringLiteral("AVERAGE"))) {
        QStringList powers;
        for (int count = 2; count <= 256; count *= 2)
            powers << QString::number(count);
        return list(powers);
    }
    return {};
}

EditPlan planDisplay(const EditTarget& t)
{
    const auto list = [&t](QStringList items) {
        return EditPlan{EditShape::List, t.caption, items, {}, false};
    };
    if (t.item == QLatin1String("Type")) return list(words({"VECTORS", "DOTS"}));
    if (t.item == QLatin1String("Persist")) return list(words({"ON", "OFF"}));
    if (t.item == QLatin1String("Grid")) return list(words({"FULL", "HALF", "NONE"}));
    if (t.item == QLatin1String("Clear")) WriteCmd(QStringLiteral(":DISPLAY:CLEAR"));
    return {};
}

} // namespace

EditPlan PlanEdit(const EditTarget& t)
{
    InstallLevelQuery();
    EditPlan plan;
    if (t.channel >= 1)
        plan = planChannel(t);
    else if (t.group == QLatin1String("Running Control"))
        plan = planRunning(t);
    else if (t.group == QLatin1String("Time Base"))
        plan = planTimeBase(t);
    else if (t.group == QLatin1String("Trigger"))
        plan = planTrigger(t);
    else if (t.group == QLatin1String("Acquire"))
        plan = planAcquire(t);
    else if (t.group == QLatin1String("Display"))
        plan = planDisplay(t);
    else if (t.group == QLatin1String("Virtual Panel") || t.group == QLatin1String("Virtual Keyboard"))
        plan.shape = EditShape::Virtual;
    if (plan.shape == EditShape::List && !plan.editable) plan.value = fieldText(t);
    return plan;
}
