#pragma once
// The last step of closing: the front panel is given back to the user and the
// VISA sessions are closed.

// A live link hears ":KEY:LOCK DISABLE" and its session is cleared and closed;
// the resource manager is closed in any case.
void ReleaseInstrumentAndVisa();
