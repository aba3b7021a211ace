#include "wave/wavechannels.h"

#include "acquire/waverecord.h"

#include <algorithm>

std::function<DisplaySwitches()> InstrumentDisplaySwitches;

DisplaySwitches CurrentDisplaySwitches()
{
    return InstrumentDisplaySwitches ? InstrumentDisplaySwitches() : DisplaySwitches{};
}

ChannelBoxes RestoreChannelBoxes(const WaveRecord& record, ChannelBoxes boxes)
{
    for (int k = 0; k < 4; ++k)
        if (record.showChannel(k + 1)) boxes[k] = {true, true};
    return boxes;
}

ChannelBoxes FollowDisplaySwitches(WaveRecord& record, ChannelBoxes boxes, const DisplaySwitches& on)
{
    if (std::none_of(on.begin(), on.end(), [](bool shown) { return shown; })) return boxes;
    for (int k = 0; k < 4; ++k) {
        boxes[k].enabled = on[k];
        if (on[k]) continue;
        boxes[k].checked = false;
        record.setShowChannel(k + 1, false);
    }
    if (std::any_of(boxes.begin(), boxes.end(), [](const ChannelBox& box) { return box.checked; }))
        return boxes;
    for (int k = 0; k < 4; ++k) {
        if (!on[k]) continue;
        boxes[k].checked = true;
        record.setShowChannel(k + 1, true);
        break;
    }
    return boxes;
}

bool ApplyChannelClick(WaveRecord& record, int index, ChannelBox& box, bool connecting)
{
    if (connecting) {
        box.checked = record.showChannel(index + 1);
        return false;
    }
    record.setShowChannel(index + 1, box.checked && box.enabled);
    return true;
}
