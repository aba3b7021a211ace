#include "stored/recordplay.h"

#include "document/sheetstate.h"
#include "stored/recordslot.h"
#include "text/captions.h"
#include "text/language.h"

#include <algorithm>
#include <cmath>

namespace {

// Slots of the replay caption list.
enum : int { CaptionPause = 7, CaptionStop = 8, CaptionReplaying = 16, CaptionSeparator = 17 };

void setFrame(RecordSlot& slot, int frame)
{
    slot.CurrentFrame = int16_t(CheckFrame(slot, frame));
}

bool atSingleRunEnd(const RecordSlot& slot)
{
    return !slot.Circular && slot.CurrentFrame == slot.LastFrame;
}

QString stateWord(int state, int language)
{
    const int caption = state == RecordReplaying ? CaptionReplaying
                        : state == RecordPause   ? CaptionPause
                                                 : CaptionStop;
    return Caption(CaptionList::RecordPlay, caption, language);
}

// Steps keep whole milliseconds, so a run of presses adds no binary noise.
double roundedToMillisecond(double seconds)
{
    return std::round(seconds * 1000.0) / 1000.0;
}

} // namespace

int CheckFrame(const RecordSlot& slot, int frame)
{
    if (slot.Circular) return frame > slot.LastFrame || frame < 1 ? 1 : frame;
    if (frame > slot.LastFrame) frame = slot.LastFrame;
    return frame < 1 ? 1 : frame;
}

void SetRecordReplayStatus(RecordSlot& slot, int state)
{
    slot.PlayState = uint8_t(state);
    slot.StatusText = DispMsg(slot, Language);
    RecordRunBusy = std::any_of(RecordSlots.begin(), RecordSlots.end(),
                                [](const RecordSlot& s) { return s.PlayState == RecordReplaying; });
}

ClockChange RecordReplayStart(RecordSlot& slot)
{
    if (!slot.HasFile) return ClockChange::Keep;
    if (atSingleRunEnd(slot)) slot.CurrentFrame = 1;
    SetRecordReplayStatus(slot, RecordReplaying);
    return ClockChange::Start;
}

ClockChange RecordReplayPause(RecordSlot& slot)
{
    if (!slot.HasFile || slot.PlayState != RecordReplaying) return ClockChange::Keep;
    SetRecordReplayStatus(slot, RecordPause);
    return ClockChange::Stop;
}

ClockChange RecordReplayStop(RecordSlot& slot)
{
    if (!slot.HasFile) return ClockChange::Keep;
    slot.CurrentFrame = 1;
    SetRecordReplayStatus(slot, RecordStop);
    return ClockChange::Stop;
}

ClockChange RecordGoToStart(RecordSlot& slot)
{
    if (!slot.HasFile) return ClockChange::Keep;
    setFrame(slot, slot.FirstFrame);
    SetRecordReplayStatus(slot, slot.PlayState);
    return ClockChange::Keep;
}

ClockChange RecordGoToEnd(RecordSlot& slot)
{
    if (!slot.HasFile) return ClockChange::Keep;
    setFrame(slot, slot.LastFrame);
    SetRecordReplayStatus(slot, slot.PlayState);
    return ClockChange::Keep;
}

ClockChange RecordStepFrame(RecordSlot& slot, int direction)
{
    if (!slot.HasFile) return ClockChange::Keep;
    setFrame(slot, slot.CurrentFrame + (direction < 0 ? -1 : 1));
    SetRecordReplayStatus(slot, RecordPause);
    return ClockChange::Stop;
}

void RecordToggleCircular(RecordSlot& slot)
{
    if (slot.HasFile) slot.Circular = !slot.Circular;
}

void RecordSetFrame(RecordSlot& slot, int frame)
{
    if (!slot.HasFile) return;
    setFrame(slot, frame);
    SetRecordReplayStatus(slot, slot.PlayState);
}

ClockChange RecordReplayTick(RecordSlot& slot)
{
    if (!slot.HasFile || slot.PlayState != RecordReplaying) return ClockChange::Stop;
    setFrame(slot, slot.CurrentFrame + 1);
    if (atSingleRunEnd(slot)) {
        SetRecordReplayStatus(slot, RecordPause);
        return ClockChange::Stop;
    }
    SetRecordReplayStatus(slot, RecordReplaying);
    return ClockChange::Keep;
}

int FrameClockInterval(const RecordSlot& slot)
{
    return std::max(1, int(std::lround(slot.FrameInterval * 1000.0)));
}

RecordBar RecordBarEnabled(const RecordSlot& slot)
{
    RecordBar bar{};
    if (!slot.HasFile) return bar;
    bar.fill(true);
    bar[RecordBtnReplay] = slot.PlayState != RecordReplaying;
    bar[RecordBtnPause] = slot.PlayState == RecordReplaying;
    bar[RecordBtnStop] = slot.PlayState != RecordStop;
    return bar;
}

QString DispMsg(const RecordSlot& slot, int language)
{
    if (!slot.HasFile) return RecordPrompt(language);
    return stateWord(slot.PlayState, language) + QLatin1Char(' ') + QString::number(slot.CurrentFrame) +
           Caption(CaptionList::RecordPlay, CaptionSeparator, language) + QString::number(slot.LastFrame);
}

QString RecordPrompt(int language)
{
    return IsChinese(language) ? QStringLiteral("请打开波形录制文件。")
                               : QStringLiteral("Please open the waveform record file.");
}

double StepFrameInterval(double interval, int direction, int steps)
{
    for (int k = 0; k < steps; ++k) {
        const double step = interval < 1.0 ? 0.001 : 0.01;
        interval = roundedToMillisecond(interval + (direction < 0 ? -step : step));
        interval = std::clamp(interval, MinFrameInterval, MaxFrameInterval);
    }
    return interval;
}

int HeldButtonSteps(int ticks)
{
    if (ticks > 50) return 50;
    if (ticks > 20) return 20;
    if (ticks > 15) return 10;
    if (ticks >= 11) return 5;
    if (ticks >= 6) return 2;
    return 0;
}
