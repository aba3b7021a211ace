#pragma once
// The program's start in its fixed order, and the probes that scripts use to time
// the start or to take a picture of the main window.

#include <QElapsedTimer>
#include <QString>
#include <QStringList>

class frmMain;

// Reads the language, shows the splash, loads the main window, drops the splash
// and shows the main window, which the caller then owns.
frmMain* Main();

struct StartupProbe {
    bool quitWhenShown = false; // print the time to the first paint, then quit
    QString screenshotPath;     // save a picture of the main window, then quit
};

// "--quit-when-shown" and "--screenshot FILE"; other arguments are left alone.
StartupProbe ParseStartupProbe(const QStringList& arguments);
void InstallStartupProbe(frmMain* window, const StartupProbe& probe, const QElapsedTimer& sinceStart);
