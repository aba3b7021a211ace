#pragma once
// The program's own pictures: one drawing for each kind of window, toolbar
// button, output button and tree node. They are SVG files in the resources,
// rendered here at the size asked, so they look the same on every desktop theme
// and need no image or icon plugin at run time.

#include <QIcon>
#include <QPixmap>
#include <QString>

class QWidget;

enum class Picture : int {
    Program,
    New,
    Open,
    Save,
    Connect,
    Disconnect,
    Options,
    Controller,
    DataBrowser,
    Sheet,
    Wave,
    Measure,
    Data,
    Record,
    MemoryWave,
    Fft,
    Refresh,
    Stop,
    Export,
    Print,
    Preview,
    CtrlGroup,
    CtrlSetting,
    Keyboard,
    Panel,
};
inline constexpr int PictureCount = static_cast<int>(Picture::Panel) + 1;

// The resource file of the picture, like ":/icons/wave.svg".
QString PictureFile(Picture picture);
// An icon drawn afresh for every size and pixel ratio asked, greyed when disabled;
// null when the resource is missing or not a drawing.
QIcon ProgramIcon(Picture picture);
// The picture at side x side pixels.
QPixmap ProgramPixmap(Picture picture, int side);
// Gives a window the picture of its kind; one line where the window is built.
void SetWindowPicture(QWidget* window, Picture picture);

// The refresh button's images: a round arrow to refresh, a square to stop;
// darker while pressed.
QPixmap RefreshButtonImage(bool stop, bool down);
