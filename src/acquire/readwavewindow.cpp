#include "acquire/readwavewindow.h"

#include "acquire/blockplacement.h"
#include "acquire/operation.h"
#include "acquire/readblocks.h"
#include "acquire/waverecord.h"
#include "link/devicefacts.h"
#include "link/linkcommands.h"
#include "link/vocabulary.h"
#include "text/keywords.h"
#include "text/valuetext.h"

namespace {

using namespace Vocab;

constexpr int ScreenPoints = 600;
constexpr int16_t BlockStep = 3;
constexpr int16_t FftStep = 1;

bool mathWanted(const WaveRecord& r)
{
    return r.ShowMath && MathDisplay != Word::Off;
}

int shownTraces(const WaveRecord& r)
{
    int count = r.ShowMath ? 1 : 0;
    for (int n = 1; n <= 4; ++n)
        count += r.showChannel(n) ? 1 : 0;
    return count;
}

void keepShowFlags(WaveRecord& r)
{
    for (int n = 1; n <= 4; ++n)
        r.PrevShow[size_t(n)] = r.showChannel(n);
    r.PrevShow[5] = r.ShowMath;
    r.PrevShow[6] = r.ShowLa;
}

void takeParameter(WaveRecord& r, PeakFlags& peaks)
{
    GetWaveParameter();
    r.Parameter = WaveParameterBlock;
    GetPeakStates(r.Parameter, peaks);
    r.TriggerMode = AskNormalised(Query({Piece::Trigger, Piece::Mode}));
    r.MathDisplayText = MathDisplay;
    // The spectrum's display switch as the instrument held it at stop: asking
    // ":FFT:DISPLAY?" as well would add a query to every reading.
    r.FFTDisplayText = r.Parameter.s8FFTEnabled_Stop != 0 ? Word::On : Word::Off;
    r.SplitScreen = SplitScreenOf(r.TriggerMode, r.FFTDisplayText, r.Parameter.s8FFTScreen);
}

void forceXyChannel(WaveRecord& r, int channel)
{
    r.setShowChannel(channel, true);
}

void takeTimeFormat(WaveRecord& r)
{
    const QString format = AskNormalised(Query({Piece::Timebase, Piece::Format})).toUpper();
    r.YTMode = format == Word::YtReply;
    r.XYMode = format == Word::XyReply;
    r.RollMode = r.YTMode ? r.Parameter.s8TimeRolling != 0 : !r.XYMode;
    if (!r.XYMode) return;
    forceXyChannel(r, 1);
    forceXyChannel(r, 2);
}

void takeChannelTexts(WaveRecord& r)
{
    for (int n = 1; n <= 4; ++n) {
        if (!r.showChannel(n)) continue;
        r.LastChannel = n;
        r.ScaleText[size_t(n)] = VoltText3(AskNormalised(Query({Piece::Channel[n - 1], Piece::Scale})));
        r.OffsetText[size_t(n)] = VoltText3(AskNormalised(Query({Piece::Channel[n - 1], Piece::Offset})));
    }
}

QString askAltTime(Text what, Text source)
{
    return TimeText4(AskNormalised(Query({Piece::Trigger, AsPiece(Word::Alternation), what}, source)));
}

void takeTimeTexts(WaveRecord& r)
{
    if (r.TriggerMode != Word::Alternation) {
        r.TimeScaleText = TimeText4(AskNormalised(Query({Piece::Timebase, Piece::Scale})));
        r.TimeOffsetText = TimeText4(AskNormalised(Query({Piece::Timebase, Piece::Offset})));
        return;
    }
    r.TimeScaleAText = askAltTime(Piece::TimeScale, Word::SourceA);
    r.TimeOffsetAText = askAltTime(Piece::TimeOffset, Word::SourceA);
    r.TimeScaleBText = askAltTime(Piece::TimeScale, Word::SourceB);
    r.TimeOffsetBText = askAltTime(Piece::TimeOffset, Word::SourceB);
}

void askByteFormat()
{
    WriteCmd(SetCommand({Piece::Waveform, Piece::Format}, Word::Byte));
}

bool readXy(WaveRecord& r)
{
    askByteFormat();
    WriteCmd(Query({Piece::Waveform, Piece::Data}, Word::XyData));
    WaveArray block;
    int count = 0;
    if (!ReadTraceBlock(block, ProgressBase, count, true, Word::XyData)) return false;
    return PlaceXyTraces(block, count, r.WaveCH1, r.WaveCH2);
}

bool readChannels(WaveRecord& r, const PeakFlags& peaks, double share)
{
    for (int n = 1; n <= 4; ++n) {
        if (!r.showChannel(n)) continue;
        ProgressStep = BlockStep;
        WriteCmd(Query({Piece::Waveform, Piece::ScreenData}, Word::Channel[n - 1]));
        int count = 0;
        const double progress = ProgressBase + share;
        const bool inside = peaks[size_t(n)]
                                ? ReadPeakBlock(r.channelWave(n), r.channelPeak(n), progress, count)
                                : ReadTraceBlock(r.channelWave(n), progress, count, false, QString());
        if (!inside) return false;
        ProgressBase += share;
    }
    return true;
}

bool readMath(WaveRecord& r, double share)
{
    const bool fft = r.FFTDisplayText == Word::On;
    ProgressStep = fft ? FftStep : BlockStep;
    const Text source = fft ? Word::Fft : Word::Math;
    WriteCmd(Query({Piece::Waveform, Piece::Data}, source));
    int count = 0;
    const bool inside =
        ReadTraceBlock(fft ? r.WaveFFT : r.WaveMath, ProgressBase + share, count, false, source);
    ProgressBase *= 2;
    return inside;
}

} // namespace

bool ReadWaveWindow(int slot)
{
    if (slot < 0 || slot >= WaveRecordCount) return false;
    WaveRecord& r = WaveRecords[size_t(slot)];
    AskRunState();
    MathDisplay = OnOffFromReply(AskNormalised(Query({Piece::Math, Piece::Display})), LanguageEnglish);
    const int traces = shownTraces(r);
    const double share = traces > 0 ? Progress().barMaximum() / traces : 0;
    keepShowFlags(r);
    PeakFlags peaks{};
    takeParameter(r, peaks);
    r.Points = ScreenPoints;
    takeTimeFormat(r);
    takeChannelTexts(r);
    takeTimeTexts(r);
    r.DateText = ReadingDateText();
    if (!r.YTMode && !r.RollMode) return r.XYMode ? readXy(r) : true;
    askByteFormat();
    if (!readChannels(r, peaks, share)) return false;
    return mathWanted(r) ? readMath(r, share) : true;
}
