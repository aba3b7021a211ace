#include "acquire/readdatatable.h"

#include "acquire/blockdecode.h"
#include "acquire/operation.h"
#include "acquire/readblocks.h"
#include "acquire/tabletext.h"
#include "acquire/wavebytes.h"
#include "link/devicefacts.h"
#include "link/linkcommands.h"
#include "link/vocabulary.h"
#include "text/valuetext.h"

#include <cmath>

TableReading LastTableReading;

namespace {

using namespace Vocab;

constexpr int16_t TableStep = 3;
constexpr double TableBarStart = 5;
constexpr int CentreCode = 100;
constexpr double CodesPerDivision = 25;
constexpr double PointsPerDivision = 50;
const QString LineEnd = QStringLiteral("\r\n");

// What the reading learns before the block, and works the columns from.
struct TableSettings {
    int channel = 0; // 1 to 4; 0 for the logic channels
    QString scaleText;
    float scale = 0;
    int16_t pos = 0;
    QString timeScaleText;
    float timeScale = 0;
    double timeOffset = 0;
    bool enabled = true;
    bool rolling = false;
};

int channelOf(const QString& source)
{
    for (int n = 1; n <= 4; ++n)
        if (source == Word::Ch[n - 1]) return n;
    return 0;
}

bool enabledAtStop(const WaveParameter& p, int channel)
{
    const int8_t bytes[] = {p.s8CH1Enabled_Stop, p.s8CH2Enabled_Stop, p.s8CH3Enabled_Stop,
                            p.s8CH4Enabled_Stop};
    return channel < 1 || bytes[channel - 1] != 0;
}

bool takeChannel(TableSettings& s)
{
    const Text root = Piece::Channel[s.channel - 1];
    s.scaleText = AskNormalised(Query({root, Piece::Scale}));
    s.scale = float(Val(s.scaleText));
    const float offset = float(Val(AskNormalised(Query({root, Piece::Offset}))));
    AskNormalised(Query({root, Piece::Invert}));
    const std::optional<int16_t> pos = PositionCodes(offset, s.scale);
    if (!pos) return false;
    s.pos = *pos;
    return true;
}

void takeMainTimeBase(TableSettings& s, TableReading& t)
{
    t.start = t.parameter.s16ScrStartPos;
    t.end = t.parameter.s16ScrEndPos;
    s.timeScaleText = AskNormalised(Query({Piece::Timebase, Piece::Scale}));
    s.timeOffset = Val(AskNormalised(Query({Piece::Timebase, Piece::Offset})));
}

// In alternate trigger CH1 and CH3 follow time base A, CH2 and CH4 time base B.
void takeAltTimeBase(TableSettings& s, TableReading& t)
{
    const bool sourceA = s.channel % 2 == 1;
    t.start = sourceA ? t.parameter.s16ScrStartPosA : t.parameter.s16ScrStartPosB;
    t.end = sourceA ? t.parameter.s16ScrEndPosA : t.parameter.s16ScrEndPosB;
    const QString alternation = Join({Piece::Trigger, AsPiece(Word::Alternation)});
    WriteCmd(SetCommand({alternation, Piece::Source}, Word::Channel[s.channel - 1]));
    const Text source = sourceA ? Word::SourceA : Word::SourceB;
    s.timeScaleText = AskNormalised(Query({alternation, Piece::TimeScale}, source));
    s.timeOffset = Val(AskNormalised(Query({alternation, Piece::TimeOffset}, source)));
}

QString headerText(const QString& source, const TableSettings& s)
{
    QString first = source + QLatin1Char(' ');
    if (s.channel > 0) first += VoltText3(s.scaleText);
    first += QStringLiteral("  ") + TimeText4(s.timeScaleText);
    if (s.channel > 0)
        first += QLatin1Char(' ') + SampleRateText(AskNormalised(
                                        Query({Piece::Acquire, Piece::SRate}, Word::Channel[s.channel - 1])));
    return first + LineEnd + QStringLiteral(" Size=") + QString::number(WaveCount) + LineEnd +
           QStringLiteral("  [Date:") + ReadingDateText() + QLatin1Char(']');
}

bool readBlock(const TableSettings& s, int& count)
{
    WriteCmd(SetCommand({Piece::Waveform, Piece::Format}, Word::Byte));
    const QString what = s.channel > 0
                             ? Query({Piece::Waveform, Piece::ScreenData}, Word::Channel[s.channel - 1])
                             : Query({Piece::Waveform, Piece::Data}, Word::Digital);
    WriteCmd(what);
    return UsbReadScreen(count);
}

bool fillTimes(const TableSettings& s, const TableReading& t)
{
    const int origin = s.rolling ? 600 : 300;
    const int first = (s.rolling ? t.parameter.s16ScrStartPos : t.start) * 2;
    const int last = (t.end + 1) * 2;
    const double step = double(float(s.timeScale / float(PointsPerDivision)));
    for (int k = first; k <= last; ++k) {
        if (k < 0 || k > TableTextLast) return false;
        DataTimeText[size_t(k)] = FormatCode(float(step * (k - origin) + s.timeOffset));
    }
    return true;
}

QString valueText(const TableSettings& s, int code)
{
    if (s.channel == 0) return FormatCode(float(code));
    const double rows = (CentreCode - s.pos) - (code - SampleBase);
    return FormatCode(float(rows * double(s.scale) / CodesPerDivision));
}

// Samples from..to into column, sample i at index i - shift.
bool fillValues(const TableSettings& s, TableTextColumn& column, int from, int to, int shift)
{
    for (int i = from; i <= to; ++i) {
        const int at = i - shift;
        if (i < 0 || i > WaveBytesLast || at < 0 || at > TableTextLast) return false;
        column[size_t(at)] = valueText(s, WaveBytes[size_t(i)]);
    }
    return true;
}

bool fillColumns(const TableSettings& s, const TableReading& t, int count)
{
    if (!fillTimes(s, t)) return false;
    if (!t.peak) return fillValues(s, DataValueText, 1, count, 0);
    const int half = count / 2;
    WaveCount = half;
    return fillValues(s, DataValueText, 1, half, 0) && fillValues(s, DataValueText2, half, count, half);
}

} // namespace

std::optional<int16_t> PositionCodes(float offset, float scale)
{
    double pos = double(offset * 25.0f / scale);
    pos += offset <= 0 ? -0.5 : 0.5;
    if (!std::isfinite(pos)) return std::nullopt;
    const double rounded = std::nearbyint(pos);
    if (rounded < INT16_MIN || rounded > INT16_MAX) return std::nullopt;
    return int16_t(rounded);
}

QString SampleRateText(const QString& reply)
{
    const QString rate = FreqText(reply);
    const qsizetype unit = rate.indexOf(QLatin1Char('H'));
    return unit < 0 ? rate : rate.left(unit) + QStringLiteral("Sa");
}

bool ReadDataTable(const QString& source)
{
    TableSettings s;
    TableReading& t = LastTableReading;
    s.channel = channelOf(source);
    AskRunState();
    GetWaveParameter();
    t = TableReading{WaveParameterBlock};
    const QString mode = AskNormalised(Query({Piece::Trigger, Piece::Mode}));
    if (s.channel > 0 && !takeChannel(s)) return false;
    if (mode == Word::Alternation && s.channel > 0)
        takeAltTimeBase(s, t);
    else
        takeMainTimeBase(s, t);
    s.timeScale = float(Val(s.timeScaleText));
    s.enabled = enabledAtStop(t.parameter, s.channel);
    s.rolling = t.parameter.s8TimeRolling != 0;
    t.peak = s.channel > 0 && ((t.parameter.s16ChanPeakState >> (s.channel - 1)) & 1);
    WaveCount = s.enabled ? (t.end - t.start + 1) * 2 : 0;
    ProgressStep = TableStep;
    Progress().setBarValue(TableBarStart);
    DataHeaderText = headerText(source, s);
    int count = 0;
    if (!readBlock(s, count)) return false;
    if (!s.enabled) return true;
    WaveCount = count;
    return fillColumns(s, t, count);
}
