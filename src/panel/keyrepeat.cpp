#include "panel/keyrepeat.h"

#include "link/linkcommands.h"

#include <algorithm>

namespace {

// From the longest hold down: (ticks held at least, count sent).
constexpr struct {
    int ticks;
    int step;
} Steps[] = {{51, 50}, {21, 20}, {16, 10}, {11, 5}, {6, 2}};

QString withCount(const QString& command, int count)
{
    return command + u' ' + QString::number(count);
}

} // namespace

int RepeatStep(int heldTicks)
{
    for (const auto& row : Steps)
        if (heldTicks >= row.ticks) return row.step;
    return 0;
}

KeyRepeat::KeyRepeat(std::function<void(bool)> setTimerEnabled) : setTimerEnabled_(std::move(setTimerEnabled))
{
}

void KeyRepeat::press(const QString& command)
{
    HeldCommand = command;
    HeldTicks = 0;
    WriteCmd(withCount(HeldCommand, 0));
    setTimerEnabled_(true);
}

void KeyRepeat::tick()
{
    Sending = true;
    HeldTicks = std::min(HeldTicks + 1, HeldTicksLimit);
    WriteCmd(withCount(HeldCommand, RepeatStep(HeldTicks)));
    Sending = false;
}

void KeyRepeat::release()
{
    setTimerEnabled_(false);
}
