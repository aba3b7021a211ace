#pragma once
// The reading frame's state and its steps that need no window. Every long
// exchange with the instrument runs as one operation: the caller names it and
// its target as an Operation, the frame runs it (in frmPrgress's timer, or
// straight away on the command line) and raises OperationDone at the end.

#include <QObject>
#include <cstdint>
#include <functional>

// Operation codes of the frame.
enum : int {
    OperationMeasureCH1 = 1, // 1 to 4: the measures of CH1 to CH4
    OperationTableCH1 = 5,   // 5 to 8: a data table of CH1 to CH4
    OperationTableLa = 9,    // a data table of the logic channels
    OperationWaveWindow = 10,
    OperationUpload = 22,
    OperationDownload = 23,
};

// An operation as its caller names it: the code, and for a wave window's
// reading (code 10) the slot of WaveRecords it fills.
struct Operation {
    int code = 0;
    int slot = 0;
};

// The code of the operation running or last run, set by the frame as a record of
// what ran (CurrentWaveIndex is the same record of the slot). Routines take the
// Operation they run, not these.
extern int OperationCode;
extern bool OperationRunning;   // the frame is busy: it can't be closed, refreshes do nothing
extern bool OperationDone;      // a reading has ended; the caller's wait ends on it
extern int16_t ProgressStep;    // what the bar's clock adds per tick
extern double ProgressBase;     // share of the bar earned by the traces already read
extern int16_t ProgressPercent; // percent shown in the wave window

// The frame's window as the readings see it. The command line has no window:
// a stand-in keeps the bar's value and nothing ticks.
class ProgressView {
  public:
    virtual ~ProgressView() = default;
    virtual void setTimer2Enabled(bool enabled) = 0; // the bar's clock (Timer2)
    virtual void setBarValue(double value) = 0;
    virtual double barValue() const = 0;
    virtual double barMaximum() const = 0;
    virtual void refresh() = 0; // repaint now
};

// The view in use: the one installed, else the stand-in.
ProgressView& Progress();
// Installs the view of a shown frame; null puts the stand-in back.
void SetProgressView(ProgressView* view);

// What the reading frame announces; windows listen to ReadingNotifier().
class ReadingEvents : public QObject {
    Q_OBJECT
  Q_SIGNALS:
    // ProgressPercent changed during the reading of a wave window's slot.
    void progressPercentChanged(int slot);
    // Operation 10 ended by its routine for the wave slot read: the window
    // hides its progress display.
    void waveReadingEnded(int slot);
};
ReadingEvents& ReadingNotifier();

// One tick of the bar's clock during the running operation: the bar grows by ProgressStep;
// in a wave window's reading ProgressPercent grows too, held at ProgressBase and
// at 100.
void ProgressTimerTick(const Operation& running);

// An operation's work on the target it is given. false: it ended by its error
// path (an index beyond a bound); the frame's closing steps run all the same.
using OperationRoutine = std::function<bool(const Operation& operation)>;
// Installs the routine of an operation code: each subsystem registers its own
// (the wave window's reading 10 and the data tables 5 to 9 come with this
// folder; measures, upload and download with theirs). An empty routine puts
// this folder's own back, or removes the code.
void SetOperationRoutine(int code, OperationRoutine routine);
// Runs the routine of the operation's code on it; false for its error path or
// an unknown code.
bool RunOperation(const Operation& operation);

// The frame's steps in two halves, so a window can show itself between them.
// Begin: records the operation, OperationDone down, LinkBusy and
// OperationRunning up, the bar at 5. Finish: asks the run state, runs the
// operation, repaints, the pause of 200 ms, then LinkBusy down, OperationDone
// up, OperationRunning down.
void BeginReadingFrame(const Operation& operation);
void FinishReadingFrame(const Operation& operation);
// The whole frame without a window, for the command line.
void RunReadingFrame(const Operation& operation);

// The pause at the end of every reading, after the window repainted.
inline constexpr int ReadingEndPauseMs = 200;

void ResetOperationState();
