#include "platform/programstate.h"

void ResetProgramState()
{
}
