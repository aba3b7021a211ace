#pragma once
// What the screenshot tools share: choosing a menu entry of the main window by
// its name, as a user's click would.

#include "frame/frmMain.h"

#include <QAction>
#include <cstdio>

inline void trigger(frmMain* window, const char* name)
{
    if (auto* action = window->findChild<QAction*>(QString::fromLatin1(name)))
        action->trigger();
    else
        std::fprintf(stderr, "no action %s\n", name);
}
