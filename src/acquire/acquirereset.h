#pragma once
// Puts the snapshot records, the last block and the table columns back to their start values.
void ResetAcquireState();
