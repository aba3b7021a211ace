#include "link/linklamp.h"

#include "link/linkstate.h"

bool LinkLampOn = false;
std::function<void(bool on)> LinkLampChanged;

void SetLinkLamp(bool on)
{
    LinkLampOn = on;
    if (LinkLampChanged) LinkLampChanged(on);
}

void LinkLost()
{
    SetLinkLamp(false);
    Connected = false;
}
