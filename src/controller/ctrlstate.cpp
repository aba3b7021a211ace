#include "controller/ctrlstate.h"

QString CtrlFileName;
bool CtrlDirty = false;

void ResetCtrlState()
{
    CtrlFileName.clear();
    CtrlDirty = false;
}
