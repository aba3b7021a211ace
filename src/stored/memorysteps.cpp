#include "stored/memorysteps.h"

#include "text/valuetext.h"

#include <cmath>
#include <vector>

namespace {

// 1-2-5 values from `low` up to `high` (both in the series), as whole numbers.
std::vector<long long> series(long long low, long long high)
{
    std::vector<long long> steps;
    for (long long decade = 1; decade <= high; decade *= 10)
        for (long long mantissa : {1, 2, 5})
            if (mantissa * decade >= low && mantissa * decade <= high) steps.push_back(mantissa * decade);
    return steps;
}

double stepThrough(const std::vector<long long>& steps, double value, int direction)
{
    if (direction < 0) {
        for (auto it = steps.rbegin(); it != steps.rend(); ++it)
            if (double(*it) < value) return double(*it);
    } else {
        for (long long step : steps)
            if (double(step) > value) return double(step);
    }
    return value;
}

} // namespace

float StepVoltDiv(float voltsPerDiv, int direction)
{
    static const std::vector<long long> steps = series(2'000, 10'000'000);
    const double microvolts = std::nearbyint(double(voltsPerDiv) * 1e6);
    if (!std::isfinite(microvolts)) return voltsPerDiv;
    return float(stepThrough(steps, microvolts, direction) / 1e6);
}

double StepTimeDiv(double secondsPerDiv, int direction, int bandwidthCode)
{
    const long long bottom = bandwidthCode == 2 ? 5'000 : bandwidthCode == 3 ? 2'000 : 1'000;
    const std::vector<long long> steps = series(bottom, 50'000'000'000'000LL);
    const double picoseconds = std::nearbyint(secondsPerDiv * 1e12);
    if (!std::isfinite(picoseconds)) return secondsPerDiv;
    return stepThrough(steps, picoseconds, direction) / 1e12;
}

void StepChannelVoltDiv(MemoryWaveSlot& slot, int channel, int direction)
{
    if (channel < 0 || channel > 3) return;
    float& voltDiv = slot.ChanVoltDiv[size_t(channel)];
    float& offset = slot.ChanOffset[size_t(channel)];
    const float old = voltDiv;
    voltDiv = StepVoltDiv(old, direction);
    if (old != 0) offset = voltDiv * offset / old;
}

bool StepMemoryValue(MemoryWaveSlot& slot, int target, int direction, int bandwidthCode)
{
    if (target >= 0 && target <= 3) {
        StepChannelVoltDiv(slot, target, direction);
        return true;
    }
    double* timeDiv = target == StepTimeSingle ? &slot.TimeDiv
                      : target == StepTimeA    ? &slot.TimeDivA
                      : target == StepTimeB    ? &slot.TimeDivB
                                               : nullptr;
    if (!timeDiv) return false;
    *timeDiv = StepTimeDiv(*timeDiv, direction, bandwidthCode);
    return true;
}

QString MemoryVoltText(double volts)
{
    return VoltText3(GeneralFormat(volts));
}

QString MemoryTimeText(double seconds)
{
    return TimeText4(GeneralFormat(seconds));
}
