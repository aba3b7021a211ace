#pragma once
// The fine adjust dialog's arithmetic: a channel's scale moved along the 1-2-5
// ladder (coarse) or in small steps between its points (fine), in integer
// microvolts at the input, and an offset moved in twenty-fifths of a division.

#include <QString>
#include <array>

// The last coarse (false) or fine (true) choice of each channel, 0 to 3, kept between openings.
extern std::array<bool, 4> ChAdjustMode;

// The ratio of a probe text ("10X" 10); false and 1 for a text that is none.
bool GetCHProbeNum(const QString& probeText, float& ratio);
// The next ladder value above (up) or below the value; the ends stay.
long long CoarseVoltStep(long long microvolts, bool up);
// One fine step up or down by the range the value is in; outside 2 mV to 10 V nothing moves.
long long FineVoltStep(long long microvolts, bool up);
// offset + scale * steps / 25 in microvolts, rounded, clamped to +-limitVolts.
long long SetCHOffset(double limitVolts, double scaleVolts, long long microvolts, int steps);

// One step of a Volt/Div text at the probe tip: divided by the probe ratio, stepped
// at the input, multiplied back and written as VoltText3.
QString StepVoltDivText(const QString& voltDiv, const QString& probe, bool fine, bool up);
// The scale at the input of a Volt/Div text, as sent: GeneralFormat of volts.
QString InputScaleText(const QString& voltDiv, const QString& probe);

// cmdAdjustOK for a channel 0 to 3: the text stored and shown, the probe and the
// input scale sent, the offset read back since the instrument moves it with the scale.
// Channels 4 to 7 are the offset mode of channels 0 to 3: the text stored and sent as the offset.
void CtrlDialogAdjustOK(int adjustChannel, const QString& text);
// The offset mode's step: the channel's offset text moved by steps twenty-fifths of a division.
QString StepOffsetText(int channel, const QString& offset, int steps);
