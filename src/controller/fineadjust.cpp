#include "controller/fineadjust.h"

#include "controller/ctrllink.h"
#include "controller/ctrlstate.h"
#include "link/linkcommands.h"
#include "text/steplists.h"
#include "text/valuetext.h"

#include <cmath>

std::array<bool, 4> ChAdjustMode{};

namespace {

constexpr double OffsetLimitVolts = 400000;

// Fine steps by range: a value from `from` (going up) or above it (going down)
// up to `to` moves by `step`.
struct FineRange {
    long long from, to, step;
};
constexpr FineRange FineRanges[] = {
    {2000, 5000, 50},          {5000, 10000, 100},          {10000, 20000, 200},
    {20000, 50000, 500},       {50000, 100000, 1000},       {100000, 200000, 2000},
    {200000, 500000, 5000},    {500000, 1000000, 10000},    {1000000, 2000000, 20000},
    {2000000, 5000000, 50000}, {5000000, 10000000, 100000},
};

long long inputMicrovolts(const QString& voltDiv, float ratio)
{
    const float volts = float(ParseVoltText(voltDiv)) / ratio;
    return std::llround(double(volts) * 1e6);
}

QString voltText(long long microvolts, float ratio)
{
    return VoltText3(GeneralFormat(double(microvolts) / 1e6 * double(ratio)));
}

} // namespace

bool GetCHProbeNum(const QString& probeText, float& ratio)
{
    static const std::pair<const char*, float> ratios[] = {
        {"0.001X", 0.001f}, {"0.01X", 0.01f}, {"0.1X", 0.1f}, {"1X", 1},   {"2X", 2},
        {"5X", 5},          {"10X", 10},      {"20X", 20},    {"50X", 50}, {"100X", 100},
        {"200X", 200},      {"500X", 500},    {"1000X", 1000}};
    for (const auto& [text, value] : ratios)
        if (probeText == QLatin1String(text)) {
            ratio = value;
            return true;
        }
    ratio = 1;
    return false;
}

long long CoarseVoltStep(long long microvolts, bool up)
{
    if (up) {
        for (const int step : CoarseVoltLadder)
            if (step > microvolts) return step;
    } else {
        for (auto step = CoarseVoltLadder.rbegin(); step != CoarseVoltLadder.rend(); ++step)
            if (*step < microvolts) return *step;
    }
    return microvolts;
}

long long FineVoltStep(long long microvolts, bool up)
{
    for (const FineRange& range : FineRanges) {
        if (up && microvolts >= range.from && microvolts < range.to) return microvolts + range.step;
        if (!up && microvolts > range.from && microvolts <= range.to) return microvolts - range.step;
    }
    return microvolts;
}

long long SetCHOffset(double limitVolts, double scaleVolts, long long microvolts, int steps)
{
    const long long moved = microvolts + std::llround(scaleVolts * steps * 0.04 * 1000000);
    const long long limit = std::llround(limitVolts * 1000000);
    return std::clamp(moved, -limit, limit);
}

QString StepVoltDivText(const QString& voltDiv, const QString& probe, bool fine, bool up)
{
    float ratio = 1;
    GetCHProbeNum(probe, ratio);
    const long long microvolts = inputMicrovolts(voltDiv, ratio);
    return voltText(fine ? FineVoltStep(microvolts, up) : CoarseVoltStep(microvolts, up), ratio);
}

QString InputScaleText(const QString& voltDiv, const QString& probe)
{
    float ratio = 1;
    GetCHProbeNum(probe, ratio);
    return GeneralFormat(double(inputMicrovolts(voltDiv, ratio)) / 1e6);
}

QString StepOffsetText(int channel, const QString& offset, int steps)
{
    if (channel < 0 || channel > 3) return offset;
    const long long microvolts = std::llround(ParseVoltText(offset) * 1e6);
    const double scale = ParseVoltText(CtrlData.ChVoltDiv[channel + 1]);
    return VoltText3(GeneralFormat(double(SetCHOffset(OffsetLimitVolts, scale, microvolts, steps)) / 1e6));
}

void CtrlDialogAdjustOK(int adjustChannel, const QString& text)
{
    CtrlRecord& r = CtrlData;
    if (adjustChannel >= 4 && adjustChannel <= 7) {
        const int n = adjustChannel - 3;
        r.ChOffset[n] = text;
        WriteCmd(QStringLiteral(":CHANNEL%1:OFFSET ").arg(n) + text.toUpper());
    } else if (adjustChannel >= 0 && adjustChannel <= 3) {
        const int n = adjustChannel + 1;
        const QString head = QStringLiteral(":CHANNEL%1:").arg(n);
        r.ChVoltDiv[n] = text;
        WriteCmd(head + "PROBE " + r.ChProbe[n]);
        WriteCmd(head + "SCALE " + InputScaleText(text, r.ChProbe[n]));
        // The instrument moves the offset with the scale.
        r.ChOffset[n] = VoltText3(AskReply(head + "OFFSET?"));
    } else {
        return;
    }
    CtrlDirty = true;
}
