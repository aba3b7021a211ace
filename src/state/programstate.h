#pragma once
// Puts every program-wide record and slot table back to its start values.
// Each subsystem adds its own reset here as it lands; every test fixture calls it.
void ResetProgramState();
