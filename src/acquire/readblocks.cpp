#include "acquire/readblocks.h"

#include "acquire/blockdecode.h"
#include "acquire/blockplacement.h"
#include "acquire/operation.h"
#include "acquire/wavebytes.h"
#include "link/devicefacts.h"
#include "link/linkcommands.h"
#include "link/vocabulary.h"
#include "platform/platform.h"
#include "text/valuetext.h"

#include <algorithm>
#include <cmath>

WaveParameter WaveParameterBlock;
QString TriggerStatusText;

namespace {

// Reads one block into WaveBytes with the bar's clock running, then moves the bar.
bool readBlock(double progress, int& count)
{
    Progress().setTimer2Enabled(true);
    const bool inside = UsbReadScreen(count);
    DoEvents();
    Progress().setBarValue(progress);
    ProgressPercent = int16_t(std::clamp(std::floor(progress), -32768.0, 32767.0));
    Progress().refresh();
    return inside;
}

} // namespace

QString AskNormalised(const QString& query)
{
    return StripAtLineFeed(AskCmd(query)).trimmed();
}

QString AskRunState()
{
    const QString reply = AskNormalised(Vocab::Query({Vocab::Piece::Trigger, Vocab::Piece::Status}));
    TriggerStatusText =
        reply.toUpper() == Vocab::Word::Stop ? QString(Vocab::Word::Stop) : QString(Vocab::Word::Run);
    return TriggerStatusText;
}

QString ReadingDateText()
{
    return Now().toString(QStringLiteral("yyyy/M/d H:mm:ss"));
}

void GetWaveParameter()
{
    WriteCmd(Vocab::Whole::WaveformParameter);
    Progress().setTimer2Enabled(true);
    ProgressStep = 1;
    UsbReadParameter(WaveParameterBlock);
    DoEvents();
    Progress().setTimer2Enabled(false);
}

TraceSource TraceSourceOf(const QString& source, bool xy)
{
    if (source == QLatin1String("LA")) return TraceSource::La;
    if (source == Vocab::Word::Fft) return TraceSource::Fft;
    return xy ? TraceSource::Xy : TraceSource::Channel;
}

bool ReadTraceBlock(WaveArray& trace, double progress, int& count, bool xy, const QString& source)
{
    if (!readBlock(progress, count)) return false;
    return PlaceTraceBlock(WaveBytes, count, TraceSourceOf(source, xy), SampleBase, trace);
}

bool ReadPeakBlock(WaveArray& first, WaveArray& second, double progress, int& count)
{
    if (!readBlock(progress, count)) return false;
    return PlacePeakBlock(WaveBytes, count, SampleBase, first, second);
}
