#pragma once
// Which channels a wave window reads next: its check boxes follow the
// instrument's display switches, and a click changes the record's wanted flags.

#include <array>
#include <functional>

struct WaveRecord;

// CH1 to CH4 at 0 to 3, math at 4: whether the instrument shows them, as the
// settings tree holds them.
using DisplaySwitches = std::array<bool, 5>;
// Installed by the settings tree; unset means nothing is known to be on.
extern std::function<DisplaySwitches()> InstrumentDisplaySwitches;
DisplaySwitches CurrentDisplaySwitches();

struct ChannelBox {
    bool enabled = false;
    bool checked = false;
};
using ChannelBoxes = std::array<ChannelBox, 4>;

// The boxes as a record restores them when its window first shows: a wanted
// channel is enabled and ticked, the others keep their state.
ChannelBoxes RestoreChannelBoxes(const WaveRecord& record, ChannelBoxes boxes);

// The boxes after each Timer1 run. When any channel or math is on: a channel
// that is off is disabled, unticked and no longer wanted, one that is on is
// enabled; if then no box is ticked, the first channel that is on is ticked and
// wanted. When nothing is on, the boxes stay.
ChannelBoxes FollowDisplaySwitches(WaveRecord& record, ChannelBoxes boxes, const DisplaySwitches& on);

// A click on box index (0 to 3): while connecting the box goes back to the
// wanted flag and false is returned; otherwise the flag follows the box.
bool ApplyChannelClick(WaveRecord& record, int index, ChannelBox& box, bool connecting);
