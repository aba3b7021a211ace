#pragma once
// The reading frame's state and its steps that need no window. Every long
// exchange with the instrument runs as one operation: the caller names it by
// OperationCode, the frame runs it (in frmPrgress's timer, or straight away on
// the command line) and raises OperationDone at the end.

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
    // ProgressPercent changed during a wave window's reading (of CurrentWaveIndex).
    void progressPercentChanged();
    // Operation 10 ended by its routine for the wave slot read: the window
    // hides its progress display.
    void waveReadingEnded(int slot);
};
ReadingEvents& ReadingNotifier();

// One tick of the bar's clock: the bar grows by ProgressStep; in a wave window's
// reading ProgressPercent grows too, held at ProgressBase and at 100.
void ProgressTimerTick();

// An operation's work. false: it ended by its error path (an index beyond a
// bound); the frame's closing steps run all the same.
using OperationRoutine = std::function<bool()>;
// Installs the routine of an operation code: each subsystem registers its own
// (the wave window's reading 10 and the data tables 5 to 9 come with this
// folder; measures, upload and download with theirs). An empty routine puts
// this folder's own back, or removes the code.
void SetOperationRoutine(int code, OperationRoutine routine);
// Runs the operation of code; false for its error path or an unknown code.
bool RunOperation(int code);

// The frame's steps in order. Begin: LinkBusy and OperationRunning up, the bar
// at 5. Tick: asks the run state, runs the operation. End: LinkBusy down,
// OperationDone up, OperationRunning down.
void BeginReadingFrame();
void RunReadingTick();
void EndReadingFrame();
// The whole frame without a window, for the command line: begin, tick, the
// pause of 200 ms, end.
void RunReadingFrame(int code);

// The pause at the end of every reading, after the window repainted.
inline constexpr int ReadingEndPauseMs = 200;

void ResetOperationState();
