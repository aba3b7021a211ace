#include "analysis/readmeasure.h"

#include "acquire/operation.h"
#include "acquire/readblocks.h"
#include "acquire/readdatatable.h"
#include "analysis/measurejudge.h"
#include "link/linkcommands.h"
#include "link/vocabulary.h"
#include "platform/platform.h"
#include "text/valuetext.h"

#include <algorithm>

namespace {

using namespace Vocab;

// The instrument is asked in this order, which is neither the rows' nor the slots'.
constexpr const char* ReadOrder[MeasureItemCount] = {
    "Frequency", "Vpp",       "Vmax",         "Vmin",         "Vtop",  "Vavg",
    "Vbase",     "Vrms",      "Vamp",         "Duty+",        "Duty-", "Period",
    "Rise Time", "Fall Time", "Pulse Width+", "Pulse Width-", "Vover", "Vpre"};

QString timeScaleReply(int channel, const QString& mode)
{
    if (mode != Word::Alternation) return AskNormalised(Query({Piece::Timebase, Piece::Scale}));
    const QString alternation = Join({Piece::Trigger, AsPiece(Word::Alternation)});
    WriteCmd(SetCommand({alternation, Piece::Source}, Word::Channel[channel - 1]));
    return AskNormalised(Query({alternation, Piece::TimeScale}));
}

QString legendText(int channel)
{
    const QString mode = AskNormalised(Query({Piece::Trigger, Piece::Mode}));
    const QString scale = AskNormalised(Query({Piece::Channel[channel - 1], Piece::Scale}));
    const QString timeScale = timeScaleReply(channel, mode);
    const QString rate = AskNormalised(Query({Piece::Acquire, Piece::SRate}, Word::Channel[channel - 1]));
    return QStringLiteral("CH%1 ").arg(channel) + VoltText3(scale) + QStringLiteral("  ") +
           TimeText4(timeScale) + QLatin1Char(' ') + SampleRateText(rate) + QStringLiteral("  [Date:") +
           ReadingDateText() + QLatin1Char(']');
}

void readItem(int row, int channel, double share)
{
    const MeasureItemInfo& info = MeasureItems[size_t(row)];
    const QString reply =
        AskCmd(Query({Piece::Measure, QLatin1String(info.query)}, Word::Channel[channel - 1]));
    CurrentMeasures[size_t(info.slot)] = MeasureValueText(info, reply);
    Sleep(MeasureReplyPauseMs);
    ProgressView& bar = Progress();
    bar.setBarValue(std::min(bar.barValue() + share, bar.barMaximum()));
    bar.refresh();
}

} // namespace

bool ReadMeasures(int channel)
{
    if (channel < 1 || channel > 4) return false;
    Sleep(MeasureStartPauseMs);
    CurrentMeasureLegend = legendText(channel);
    WriteCmd(SetCommand({Piece::Measure, Piece::Source}, Word::Channel[channel - 1]));
    const double share = Progress().barMaximum() / MeasureItemCount;
    for (const char* name : ReadOrder)
        readItem(MeasureRowOf(QLatin1String(name)), channel, share);
    return true;
}

void InstallMeasureOperations()
{
    for (int channel = 1; channel <= 4; ++channel)
        SetOperationRoutine(OperationMeasureCH1 + channel - 1,
                            [channel](const Operation&) { return ReadMeasures(channel); });
}

void TakeMeasureReading(MeasureRecord& record, int channel)
{
    for (int slot = 0; slot < MeasureItemCount; ++slot)
        record.Items[size_t(slot)].Value = CurrentMeasures[size_t(slot)];
    record.Legend = CurrentMeasureLegend;
    record.Channel = channel;
    record.HasData = true;
}
