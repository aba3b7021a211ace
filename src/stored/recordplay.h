#pragma once
// Replaying a record slot like a film: the play states and what each command
// does to the frame number, the eight buttons of the bar, the status text and
// the time between frames. No window: the record window applies the clock
// changes these routines hand back to its TimerInterval.

#include <QString>
#include <array>

struct RecordSlot;

// What the frame clock must do after a command.
enum class ClockChange { Keep, Start, Stop };

// The eight buttons of the bar, by index.
enum RecordButton : int {
    RecordBtnReplay,
    RecordBtnPause,
    RecordBtnStop,
    RecordBtnStart,
    RecordBtnEnd,
    RecordBtnNext,
    RecordBtnPrevious,
    RecordBtnCircular,
    RecordButtonCount
};
using RecordBar = std::array<bool, RecordButtonCount>;

inline constexpr double MinFrameInterval = 0.001;
inline constexpr double MaxFrameInterval = 60.0;

// A frame number as the slot may hold it: with Circular, past either end is 1;
// without, above LastFrame is LastFrame and below 1 is 1.
int CheckFrame(const RecordSlot& slot, int frame);

// Stores the state; the bar and the status follow from the slot.
void SetRecordReplayStatus(RecordSlot& slot, int state);

// The commands; each does nothing without a file.
ClockChange RecordReplayStart(RecordSlot& slot);
ClockChange RecordReplayPause(RecordSlot& slot);
ClockChange RecordReplayStop(RecordSlot& slot);
ClockChange RecordGoToStart(RecordSlot& slot);
ClockChange RecordGoToEnd(RecordSlot& slot);
// One frame on (+1) or back (-1); the clock stops and the slot pauses.
ClockChange RecordStepFrame(RecordSlot& slot, int direction);
void RecordToggleCircular(RecordSlot& slot);
// The slider sets the frame under the check.
void RecordSetFrame(RecordSlot& slot, int frame);
// One tick of the frame clock while replaying: the next frame, and a pause at
// the end of a single run.
ClockChange RecordReplayTick(RecordSlot& slot);

// The frame clock's interval for the slot, in milliseconds.
int FrameClockInterval(const RecordSlot& slot);

// Which buttons can act in the slot's state; none without a file.
RecordBar RecordBarEnabled(const RecordSlot& slot);

// The state word and the frame counter ("Replaying 3/10"), or the prompt to open
// a file while there is none.
QString DispMsg(const RecordSlot& slot, int language);
QString RecordPrompt(int language);

// One press of Add (+1) or Sub (-1): 0.001 s below 1.0, 0.01 s from 1.0 up,
// within 0.001 to 60.0. steps repeats it.
double StepFrameInterval(double interval, int direction, int steps = 1);
// Steps of one tick of the held button after ticks ticks.
int HeldButtonSteps(int ticks);
