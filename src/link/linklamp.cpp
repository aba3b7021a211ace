#include "link/linklamp.h"

#include "link/linkstate.h"

bool LinkLampOn = false;

LinkEvents& LinkNotifier()
{
    static LinkEvents events;
    return events;
}

void SetLinkLamp(bool on)
{
    LinkLampOn = on;
    Q_EMIT LinkNotifier().lampChanged(on);
}

void LinkLost()
{
    const bool wasConnected = Connected;
    SetLinkLamp(false);
    Connected = false;
    if (wasConnected) Q_EMIT LinkNotifier().linkLost();
}
