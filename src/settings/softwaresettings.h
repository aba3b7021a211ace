#pragma once
// The software settings kept in the settings store between runs. The link's own
// settings (transport, port, baud rate) live with the link state; this record
// holds the rest, and LoadSoftwareSetting/SaveSoftwareSetting move all of them.

#include <QString>

inline const QString RefreshSingle = QStringLiteral("Single");
inline const QString RefreshAuto = QStringLiteral("Auto");

// Window positions are kept in twips, as the store has always held them.
struct WindowPlacement {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};
inline constexpr int TwipsPerPixel = 15;

extern bool StartupCheckHardware;
extern bool StartupLoadSheet;
extern bool StartupLoadCtrl;
extern int GpibAddress;
extern QString RefreshType; // RefreshSingle or RefreshAuto
extern int RefreshInterval; // ms
extern WindowPlacement MainPlacement;
extern WindowPlacement ProgressPlacement; // left and top only

// Reads every key but the progress window's and the language, in the store's order.
// A key holding no number leaves its variable 0 and the load goes on.
void LoadSoftwareSetting();
// Writes the same keys in the same order.
void SaveSoftwareSetting();
// Reads the progress window's corner (its window checks the values itself).
void LoadProgressPlacement();

void ResetSoftwareSettings();
