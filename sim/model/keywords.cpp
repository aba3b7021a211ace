#include "model/keywords.h"

#include <QList>
#include <cmath>

bool keywordAccepts(const char* accepted, const QByteArray& upperWord)
{
    const QList<QByteArray> words = QByteArray(accepted).split('|');
    return !upperWord.isEmpty() && words.contains(upperWord);
}

namespace Keywords {

KeywordTable<TimeFormat> timeFormat()
{
    static const Keyword<TimeFormat> table[] = {
        {TimeFormat::YT, "Y-T", "YT|Y-T"},
        {TimeFormat::XY, "X-Y", "XY|X-Y"},
        {TimeFormat::Roll, "ROLL", "ROLL"},
    };
    return table;
}

KeywordTable<TriggerType> triggerType()
{
    static const Keyword<TriggerType> table[] = {
        {TriggerType::Edge, "EDGE", "EDGE"},
        {TriggerType::Pulse, "PULSE", "PULSE"},
        {TriggerType::Video, "VIDEO", "VIDEO"},
        {TriggerType::Slope, "SLOPE", "SLOPE"},
        {TriggerType::Alternation, "ALTERNATION", "ALTERNATION|ALTERNATIVE|ALT"},
        {TriggerType::Pattern, "PATTERN", "PATTERN|PATT"},
        {TriggerType::Duration, "DURATION", "DURATION|DUR"},
    };
    return table;
}

// Each alternate source triggers on one of the plain types.
KeywordTable<TriggerType> altTriggerType()
{
    return triggerType().first(4);
}

KeywordTable<TriggerSource> triggerSource()
{
    static const Keyword<TriggerSource> table[] = {
        {TriggerSource::Channel1, "CHANNEL1", "CHANNEL1|CH1|CHAN1"},
        {TriggerSource::Channel2, "CHANNEL2", "CHANNEL2|CH2|CHAN2"},
        {TriggerSource::Channel3, "CHANNEL3", "CHANNEL3|CH3|CHAN3"},
        {TriggerSource::Channel4, "CHANNEL4", "CHANNEL4|CH4|CHAN4"},
        {TriggerSource::Ext, "EXT", "EXT"},
        {TriggerSource::Ext5, "EXT5", "EXT5|EXT/5"},
        {TriggerSource::AcLine, "ACLINE", "ACLINE|AC"},
    };
    return table;
}

KeywordTable<Sweep> sweep()
{
    static const Keyword<Sweep> table[] = {
        {Sweep::Auto, "AUTO", "AUTO"},
        {Sweep::Normal, "NORMAL", "NORMAL|NORM"},
        {Sweep::Single, "SINGLE", "SINGLE|SING"},
    };
    return table;
}

KeywordTable<ChannelCoupling> channelCoupling()
{
    static const Keyword<ChannelCoupling> table[] = {
        {ChannelCoupling::DC, "DC", "DC"},
        {ChannelCoupling::AC, "AC", "AC"},
        {ChannelCoupling::GND, "GND", "GND"},
    };
    return table;
}

KeywordTable<TriggerCoupling> triggerCoupling()
{
    static const Keyword<TriggerCoupling> table[] = {
        {TriggerCoupling::DC, "DC", "DC"},
        {TriggerCoupling::AC, "AC", "AC"},
        {TriggerCoupling::HF, "HF", "HF"},
        {TriggerCoupling::LF, "LF", "LF"},
    };
    return table;
}

KeywordTable<EdgeSlope> edgeSlope()
{
    static const Keyword<EdgeSlope> table[] = {
        {EdgeSlope::Positive, "POSITIVE", "POSITIVE|POS|RISING"},
        {EdgeSlope::Negative, "NEGATIVE", "NEGATIVE|NEG|FALLING"},
        {EdgeSlope::Alternation, "ALTERNATION", "ALTERNATION|ALT"},
    };
    return table;
}

// Commands carry the words without blanks; replies carry a blank in them.
KeywordTable<PulseMode> pulseMode()
{
    static const Keyword<PulseMode> table[] = {
        {PulseMode::PlusLess, "+LESS THAN", "+LESSTHAN|+LESS THAN"},
        {PulseMode::MinusLess, "-LESS THAN", "-LESSTHAN|-LESS THAN"},
        {PulseMode::PlusGreater, "+GREATER THAN", "+GREATERTHAN|+GREATER THAN"},
        {PulseMode::MinusGreater, "-GREATER THAN", "-GREATERTHAN|-GREATER THAN"},
        {PulseMode::PlusEqual, "+EQUAL", "+EQUAL"},
        {PulseMode::MinusEqual, "-EQUAL", "-EQUAL"},
    };
    return table;
}

KeywordTable<bool> polarity()
{
    static const Keyword<bool> table[] = {
        {true, "POSITIVE", "POSITIVE|POS"},
        {false, "NEGATIVE", "NEGATIVE|NEG"},
    };
    return table;
}

KeywordTable<VideoSync> videoSync()
{
    static const Keyword<VideoSync> table[] = {
        {VideoSync::AllLines, "ALL LINES", "ALLLINES|ALL LINES"},
        {VideoSync::Line, "LINE", "LINE"},
        {VideoSync::OddField, "ODD FIELD", "ODDFIELD|ODD FIELD"},
        {VideoSync::EvenField, "EVEN FIELD", "EVENFIELD|EVEN FIELD"},
    };
    return table;
}

KeywordTable<VideoStandard> videoStandard()
{
    static const Keyword<VideoStandard> table[] = {
        {VideoStandard::Ntsc, "NTSC", "NTSC"},
        {VideoStandard::PalSecam, "PAL/SECAM", "PALSECAM|PAL/SECAM|PAL|SECAM"},
    };
    return table;
}

KeywordTable<SlopeWindow> slopeWindow()
{
    static const Keyword<SlopeWindow> table[] = {
        {SlopeWindow::PA, "PA", "PA"}, {SlopeWindow::PB, "PB", "PB"}, {SlopeWindow::PAB, "PAB", "PAB"},
        {SlopeWindow::NA, "NA", "NA"}, {SlopeWindow::NB, "NB", "NB"}, {SlopeWindow::NAB, "NAB", "NAB"},
    };
    return table;
}

KeywordTable<Qualifier> qualifier()
{
    static const Keyword<Qualifier> table[] = {
        {Qualifier::Less, "LESS THAN", "LESSTHAN|LESS THAN"},
        {Qualifier::Greater, "GREATER THAN", "GREATERTHAN|GREATER THAN"},
        {Qualifier::Equal, "EQUAL", "EQUAL"},
    };
    return table;
}

KeywordTable<AcquireType> acquireType()
{
    static const Keyword<AcquireType> table[] = {
        {AcquireType::Normal, "NORMAL", "NORMAL|NORM"},
        {AcquireType::Average, "AVERAGE", "AVERAGE|AVER"},
        {AcquireType::PeakDetect, "PEAKDETECT", "PEAKDETECT|PEAK"},
    };
    return table;
}

KeywordTable<bool> samplingMode()
{
    static const Keyword<bool> table[] = {
        {false, "RTIME", "RTIME"},
        {true, "ETIME", "ETIME"},
    };
    return table;
}

KeywordTable<bool> displayType()
{
    static const Keyword<bool> table[] = {
        {true, "VECTORS", "VECTORS|VECT"},
        {false, "DOTS", "DOTS"},
    };
    return table;
}

KeywordTable<GridType> grid()
{
    static const Keyword<GridType> table[] = {
        {GridType::Full, "FULL", "FULL"},
        {GridType::Half, "HALF", "HALF"},
        {GridType::None, "NONE", "NONE"},
    };
    return table;
}

KeywordTable<MathOperation> mathOperation()
{
    static const Keyword<MathOperation> table[] = {
        {MathOperation::Add, "ADD", "ADD|A+B"},
        {MathOperation::Subtract, "SUBTRACT", "SUBTRACT|SUB|A-B"},
        {MathOperation::Multiply, "MULTIPLY", "MULTIPLY|MUL|AXB"},
        {MathOperation::Fft, "FFT", "FFT"},
    };
    return table;
}

KeywordTable<FftWindow> fftWindow()
{
    static const Keyword<FftWindow> table[] = {
        {FftWindow::Rectangle, "RECTANGLE", "RECTANGLE|RECT"},
        {FftWindow::Hanning, "HANNING", "HANNING|HANN"},
        {FftWindow::Hamming, "HAMMING", "HAMMING|HAMM"},
        {FftWindow::Blackman, "BLACKMAN", "BLACKMAN|BLAC"},
    };
    return table;
}

} // namespace Keywords

namespace {
const struct {
    double ratio;
    const char* text;
} Probes[] = {{0.001, "0.001X"}, {0.01, "0.01X"}, {0.1, "0.1X"},  {1, "1X"},   {2, "2X"},
              {5, "5X"},         {10, "10X"},     {20, "20X"},    {50, "50X"}, {100, "100X"},
              {200, "200X"},     {500, "500X"},   {1000, "1000X"}};
} // namespace

std::optional<double> probeRatio(const QByteArray& upperText)
{
    for (const auto& probe : Probes) {
        if (upperText == probe.text || upperText + 'X' == probe.text) return probe.ratio;
    }
    return std::nullopt;
}

QByteArray probeText(double ratio)
{
    for (const auto& probe : Probes) {
        if (std::fabs(probe.ratio - ratio) <= probe.ratio * 1e-6) return probe.text;
    }
    return "1X";
}

std::optional<int> channelWord(const QByteArray& upperWord)
{
    for (const char* stem : {"CHANNEL", "CHAN", "CH", ""}) {
        if (upperWord.size() == qsizetype(qstrlen(stem)) + 1 && upperWord.startsWith(stem)) {
            const char digit = upperWord.back();
            if (digit >= '1' && digit <= '4') return digit - '1';
        }
    }
    return std::nullopt;
}
