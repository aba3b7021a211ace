#include "text/keywords.h"

#include "text/valuetext.h"
#include "text/treewords.h"

#include <span>

namespace {

struct Word {
    const char* english;
    const char* wire;
    const char* reply = nullptr; // when the answer differs from the command word
    WordSense sense = WordSense::Plain;
};
using Table = std::span<const Word>;

QString displayOf(const Word& word, int language)
{
    return ValueWord(QLatin1String(word.english), language, word.sense);
}

QLatin1String replyOf(const Word& word)
{
    return QLatin1String(word.reply ? word.reply : word.wire);
}

QString toWire(Table table, const QString& display, int language)
{
    for (const Word& word : table)
        if (display == displayOf(word, language)) return QLatin1String(word.wire);
    return QLatin1String(table.back().wire);
}

QString fromReply(Table table, const QString& reply, int language)
{
    const QString text = StripAtLineFeed(reply);
    for (const Word& word : table)
        if (text == replyOf(word)) return displayOf(word, language);
    return displayOf(table.back(), language);
}

constexpr Word RunState[] = {{"RUN", ":RUN", "RUN"}, {"STOP", ":STOP", "STOP"}};
constexpr Word OnOff[] = {{"ON", "ON", "1"}, {"OFF", "OFF", "0"}};
constexpr Word Sampling[] = {{"REAL_TIME", "RTIME"}, {"EQUAL_TIME", "ETIME"}};
constexpr Word Acquisition[] = {{"NORMAL", "NORMAL"}, {"PEAKDETECT", "PEAKDETECT"}, {"AVERAGE", "AVERAGE"}};
constexpr Word DisplayType[] = {{"VECTORS", "VECTORS"}, {"DOTS", "DOTS"}};
constexpr Word Grid[] = {{"FULL", "FULL"}, {"HALF", "HALF"}, {"NONE", "NONE"}};
constexpr Word TriggerType[] = {{"EDGE", "EDGE"},
                                {"PULSE", "PULSE"},
                                {"VIDEO", "VIDEO"},
                                {"SLOPE", "SLOPE"},
                                {"ALTERNATIVE", "ALTERNATION"},
                                {"PATTERN", "PATTERN"},
                                {"DURATION", "DURATION"}};
constexpr Word Sweep[] = {{"AUTO", "AUTO"}, {"NORMAL", "NORMAL"}, {"SINGLE", "SINGLE"}};
constexpr Word Coupling[] = {{"AC", "AC"}, {"DC", "DC"}, {"LF", "LF"}, {"HF", "HF"}, {"GND", "GND"}};
constexpr Word EdgeSlope[] = {
    {"RISING", "POSITIVE"}, {"FALLING", "NEGATIVE"}, {"ALTERNATION", "ALTERNATION"}};
constexpr Word PulseMode[] = {{"+Less Than", "+LESSTHAN", "+LESS THAN"},
                              {"-Less Than", "-LESSTHAN", "-LESS THAN"},
                              {"+Greater Than", "+GREATERTHAN", "+GREATER THAN"},
                              {"-Greater Than", "-GREATERTHAN", "-GREATER THAN"},
                              {"+Equal", "+EQUAL"},
                              {"-Equal", "-EQUAL"}};
constexpr WordSense Slope = WordSense::SlopeMode;
// The pulse modes' words with the slope trigger's Chinese.
constexpr Word SlopeMode[] = {{"+Less Than", "+LESSTHAN", "+LESS THAN", Slope},
                              {"-Less Than", "-LESSTHAN", "-LESS THAN", Slope},
                              {"+Greater Than", "+GREATERTHAN", "+GREATER THAN", Slope},
                              {"-Greater Than", "-GREATERTHAN", "-GREATER THAN", Slope},
                              {"+Equal", "+EQUAL", nullptr, Slope},
                              {"-Equal", "-EQUAL", nullptr, Slope}};
constexpr Word VideoPolarity[] = {{"POSITIVE", "POSITIVE"}, {"NEGATIVE", "NEGATIVE"}};
constexpr Word VideoSync[] = {{"ALLlines", "ALLLINES", "ALL LINES"},
                              {"LINE", "LINE"},
                              {"ODDfield", "ODDFIELD", "ODD FIELD"},
                              {"EVENfield", "EVENFIELD", "EVEN FIELD"}};
constexpr Word DurationQualifier[] = {
    {"Less Than", "", "LESS THAN"}, {"Greater Than", "", "GREATER THAN"}, {"Equal", "", "EQUAL"}};
constexpr Word AcLine{"AC", "ACLINE", nullptr, WordSense::AcLine};
// CHANNEL1 last: it is what an unknown source becomes.
constexpr Word TriggerSource[] = {
    {"EXT", "EXT"},           {"EXT5", "EXT5"},         AcLine,
    {"CHANNEL2", "CHANNEL2"}, {"CHANNEL3", "CHANNEL3"}, {"CHANNEL4", "CHANNEL4"},
    {"CHANNEL1", "CHANNEL1"}};

} // namespace

QString AcLineText(int language)
{
    return displayOf(AcLine, language);
}

QString RunStateToWire(const QString& display, int language)
{
    return toWire(RunState, display, language);
}

QString RunStateFromReply(const QString& reply, int language)
{
    const bool stopped = StripAtLineFeed(reply) == QLatin1String("STOP");
    return displayOf(RunState[stopped ? 1 : 0], language);
}

QString OnOffToWire(const QString& display, int language)
{
    return toWire(OnOff, display, language);
}

QString OnOffFromReply(const QString& reply, int language)
{
    return fromReply(OnOff, reply, language);
}

QString HfRejectFromReply(const QString& reply, int language)
{
    return displayOf(OnOff[Val(StripAtLineFeed(reply)) == 1 ? 0 : 1], language);
}

QString SamplingToWire(const QString& display, int language)
{
    return toWire(Sampling, display, language);
}

QString SamplingFromReply(const QString& reply, int language)
{
    return fromReply(Sampling, reply, language);
}

QString AcquisitionToWire(const QString& display, int language)
{
    return toWire(Acquisition, display, language);
}

QString AcquisitionFromReply(const QString& reply, int language)
{
    return fromReply(Acquisition, reply, language);
}

QString DisplayTypeToWire(const QString& display, int language)
{
    return toWire(DisplayType, display, language);
}

QString DisplayTypeFromReply(const QString& reply, int language)
{
    return fromReply(DisplayType, reply, language);
}

QString GridToWire(const QString& display, int language)
{
    return toWire(Grid, display, language);
}

QString GridFromReply(const QString& reply, int language)
{
    return fromReply(Grid, reply, language);
}

QString TriggerTypeToWire(const QString& display, int language)
{
    return toWire(TriggerType, display, language);
}

QString TriggerTypeFromReply(const QString& reply, int language)
{
    return fromReply(TriggerType, reply, language);
}

QString SweepToWire(const QString& display, int language)
{
    return toWire(Sweep, display, language);
}

QString SweepFromReply(const QString& reply, int language)
{
    return fromReply(Sweep, reply, language);
}

QString CouplingToWire(const QString& display, int language)
{
    return toWire(Coupling, display, language);
}

QString CouplingFromReply(const QString& reply, int language)
{
    return fromReply(Coupling, reply, language);
}

QString EdgeSlopeToWire(const QString& display, int language)
{
    return toWire(EdgeSlope, display, language);
}

QString EdgeSlopeFromReply(const QString& reply, int language)
{
    return fromReply(EdgeSlope, reply, language);
}

QString PulseModeToWire(const QString& display, int language)
{
    return toWire(PulseMode, display, language);
}

QString PulseModeFromReply(const QString& reply, int language)
{
    return fromReply(PulseMode, reply, language);
}

QString SlopeModeToWire(const QString& display, int language)
{
    return toWire(SlopeMode, display, language);
}

QString SlopeModeFromReply(const QString& reply, int language)
{
    return fromReply(SlopeMode, reply, language);
}

QString VideoPolarityToWire(const QString& display, int language)
{
    return toWire(VideoPolarity, display, language);
}

QString VideoPolarityFromReply(const QString& reply, int language)
{
    return fromReply(VideoPolarity, reply, language);
}

QString VideoSyncToWire(const QString& display, int language)
{
    return toWire(VideoSync, display, language);
}

QString VideoSyncFromReply(const QString& reply, int language)
{
    return fromReply(VideoSync, reply, language);
}

QString DurationQualifierFromReply(const QString& reply, int language)
{
    return fromReply(DurationQualifier, reply, language);
}

QString VideoStandardToWire(const QString& display)
{
    return display == QLatin1String("PAL/SECAM") ? QStringLiteral("PALSECAM") : display;
}

QString VideoStandardFromReply(const QString& reply)
{
    return StripAtLineFeed(reply);
}

QString TimeFormatToWire(const QString& display)
{
    if (display == QLatin1String("Y-T")) return QStringLiteral("YT");
    return display == QLatin1String("X-Y") ? QStringLiteral("XY") : QStringLiteral("ROLL");
}

QString TimeFormatFromReply(const QString& reply)
{
    const QString text = StripAtLineFeed(reply);
    return text == QLatin1String("ROLL") ? QStringLiteral("Roll") : text;
}

QString TriggerSourceToWire(const QString& display, int language)
{
    return toWire(TriggerSource, display, language);
}

QString TriggerSourceFromReply(const QString& reply, int language)
{
    const QString text = StripAtLineFeed(reply);
    return text == QLatin1String(AcLine.wire) ? AcLineText(language) : text;
}

QString LaThresholdFromReply(const QString& reply)
{
    const QString text = StripAtLineFeed(reply);
    if (text == QLatin1String("ECL") || text == QLatin1String("CMOS") || text == QLatin1String("TTL"))
        return text;
    return VoltText3(text.mid(5));
}

QString AltSourcesFromReply(const QString& reply)
{
    const QString text = StripAtLineFeed(reply);
    if (text == QLatin1String("CHAN1CHAN2") || text == QLatin1String("CHANNEL1CHANNEL2"))
        return QStringLiteral("CH1CH2");
    if (text == QLatin1String("CHAN3CHAN4") || text == QLatin1String("CHANNEL3CHANNEL4"))
        return QStringLiteral("CH3CH4");
    return text;
}
