#include "stored/memorywaveslot.h"

std::array<MemoryWaveSlot, MemoryWaveSlotCount> MemoryWaveSlots;
int ModelBandwidthCode = 0;

int MemoryWaveSlot::sampleCount(int channel) const
{
    if (channel < 0 || channel > 3) return 0;
    const auto size = int(Samples[size_t(channel)].size());
    return size > 0 ? size - 1 : 0;
}

bool SourcesPairOddChannels(uint8_t triggerSourceA, uint8_t triggerSourceB)
{
    return triggerSourceB == 1 || triggerSourceA == 2;
}

MemoryTimeBase MemoryWaveSlot::timeBaseOf(int channel) const
{
    if (!IsAlternation) return MemoryTimeBase::Single;
    if (channel == 0) return MemoryTimeBase::A;
    if (channel == 3) return MemoryTimeBase::B;
    const bool odd = SourcesPairOddChannels(TriggerSourceA, TriggerSourceB);
    // CH2 goes with CH4 when the odd channels pair up, else with CH1; CH3 the other way.
    if (channel == 1) return odd ? MemoryTimeBase::B : MemoryTimeBase::A;
    return odd ? MemoryTimeBase::A : MemoryTimeBase::B;
}

MemoryWaveWindow& MemoryWaveSlot::windowOf(MemoryTimeBase base)
{
    return base == MemoryTimeBase::A ? WindowA : base == MemoryTimeBase::B ? WindowB : Single;
}

const MemoryWaveWindow& MemoryWaveSlot::windowOf(MemoryTimeBase base) const
{
    return base == MemoryTimeBase::A ? WindowA : base == MemoryTimeBase::B ? WindowB : Single;
}

namespace {

// One copy routine for both directions, so the two can never drift apart.
template <typename From, typename To> void copySettings(const From& from, To& to)
{
    to.ChanOffset = from.ChanOffset;
    to.ChanVoltDiv = from.ChanVoltDiv;
    to.TimeDiv = from.TimeDiv;
    to.Delay = from.Delay;
    to.StartTime = from.StartTime;
    to.SampleRate = from.SampleRate;
    to.TimeDivA = from.TimeDivA;
    to.DelayA = from.DelayA;
    to.StartTimeA = from.StartTimeA;
    to.SampleRateA = from.SampleRateA;
    to.TimeDivB = from.TimeDivB;
    to.DelayB = from.DelayB;
    to.StartTimeB = from.StartTimeB;
    to.SampleRateB = from.SampleRateB;
}

} // namespace

void SnapshotLoadedSettings(MemoryWaveSlot& slot)
{
    copySettings(slot, slot.Loaded);
}

void RestoreLoadedSettings(MemoryWaveSlot& slot)
{
    copySettings(slot.Loaded, slot);
}

void ClearMemoryWaveSlot(int slot)
{
    if (slot >= 0 && slot < MemoryWaveSlotCount) MemoryWaveSlots[size_t(slot)] = MemoryWaveSlot{};
}

void ResetMemoryWaveSlots()
{
    MemoryWaveSlots.fill(MemoryWaveSlot{});
    ModelBandwidthCode = 0;
}
