#include "platform/programstate.h"

#include "frame/language.h"

void ResetProgramState()
{
    ResetLanguageState();
}
