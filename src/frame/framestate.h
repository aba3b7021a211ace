#pragma once
// Puts the frame's own records (software settings, serial status texts) back to
// their start values.
void ResetFrameState();
