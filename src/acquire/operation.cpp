#include "acquire/operation.h"

#include "acquire/readblocks.h"
#include "acquire/readdatatable.h"
#include "acquire/readwavewindow.h"
#include "acquire/waverecord.h"
#include "link/linkstate.h"
#include "platform/platform.h"

#include <algorithm>
#include <map>

int OperationCode = 0;
bool OperationRunning = false;
bool OperationDone = false;
int16_t ProgressStep = 0;
double ProgressBase = 0;
int16_t ProgressPercent = 0;

namespace {

constexpr double BarStart = 5;
constexpr double BarMaximum = 100;

// The bar of a frame with no window.
class HeadlessProgress : public ProgressView {
  public:
    void setTimer2Enabled(bool) override {}
    void setBarValue(double value) override { value_ = value; }
    double barValue() const override { return value_; }
    double barMaximum() const override { return BarMaximum; }
    void refresh() override {}

  private:
    double value_ = 0;
};

HeadlessProgress headless;
ProgressView* installed = nullptr;

const QString TableSources[] = {QStringLiteral("CH1"), QStringLiteral("CH2"), QStringLiteral("CH3"),
                                QStringLiteral("CH4"), QStringLiteral("LA")};

// The readings this folder owns, registered like every other subsystem's.
std::map<int, OperationRoutine> ownRoutines()
{
    std::map<int, OperationRoutine> own{
        {OperationWaveWindow, [](const Operation& reading) { return ReadWaveWindow(reading.slot); }}};
    for (int code = OperationTableCH1; code <= OperationTableLa; ++code)
        own[code] = [](const Operation& reading) {
            return ReadDataTable(TableSources[reading.code - OperationTableCH1]);
        };
    return own;
}

std::map<int, OperationRoutine>& routines()
{
    static std::map<int, OperationRoutine> table = ownRoutines();
    return table;
}

} // namespace

ProgressView& Progress()
{
    return installed ? *installed : headless;
}

void SetProgressView(ProgressView* view)
{
    installed = view;
}

ReadingEvents& ReadingNotifier()
{
    static ReadingEvents events;
    return events;
}

void ProgressTimerTick(const Operation& running)
{
    ProgressView& bar = Progress();
    bar.setBarValue(std::min(bar.barValue() + ProgressStep, bar.barMaximum()));
    if (running.code != OperationWaveWindow || !OperationRunning) return;
    int percent = ProgressPercent + ProgressStep;
    if (percent > ProgressBase) percent = int(ProgressBase);
    ProgressPercent = int16_t(std::min(percent, 100));
    Q_EMIT ReadingNotifier().progressPercentChanged(running.slot);
}

void SetOperationRoutine(int code, OperationRoutine routine)
{
    if (!routine) {
        const std::map<int, OperationRoutine> own = ownRoutines();
        const auto found = own.find(code);
        if (found == own.end()) {
            routines().erase(code);
            return;
        }
        routine = found->second;
    }
    routines()[code] = std::move(routine);
}

bool RunOperation(const Operation& operation)
{
    const auto found = routines().find(operation.code);
    return found != routines().end() && found->second(operation);
}

void BeginReadingFrame(const Operation& operation)
{
    OperationCode = operation.code;
    if (operation.code == OperationWaveWindow) CurrentWaveIndex = operation.slot;
    OperationDone = false;
    LinkBusy = true;
    ProgressBase = 0;
    Progress().setTimer2Enabled(false);
    Progress().setBarValue(BarStart);
    OperationRunning = true;
}

void FinishReadingFrame(const Operation& operation)
{
    AskRunState();
    const bool finished = RunOperation(operation);
    if (finished && operation.code == OperationWaveWindow)
        Q_EMIT ReadingNotifier().waveReadingEnded(operation.slot);
    Progress().refresh();
    Sleep(ReadingEndPauseMs);
    Progress().setTimer2Enabled(false);
    LinkBusy = false;
    OperationDone = true;
    OperationRunning = false;
}

void RunReadingFrame(const Operation& operation)
{
    BeginReadingFrame(operation);
    FinishReadingFrame(operation);
}

void ResetOperationState()
{
    OperationCode = 0;
    OperationRunning = false;
    OperationDone = false;
    ProgressStep = 0;
    ProgressBase = 0;
    ProgressPercent = 0;
    installed = nullptr;
    headless.setBarValue(0);
    WaveParameterBlock = WaveParameter{};
    TriggerStatusText.clear();
}
