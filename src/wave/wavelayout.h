#pragma once
// Where the parts of a wave window go for a window size and zoom: the pane that
// holds the picture, the picture itself, the scroll bars and the progress strip.
// Pure geometry in pixels, so the window only applies it.

#include <QPoint>
#include <QRect>
#include <QSize>
#include <optional>

// The pane sits right of the controls and below a thin top margin (1100 and 100
// twips); a scroll bar is 250 twips wide and takes 280 twips of the pane.
inline constexpr int PaneLeft = 73;
inline constexpr int PaneTop = 7;
inline constexpr int ScrollBarWidth = 17;
inline constexpr int ScrollBarRoom = 19;
// The picture at zoom 1.
inline constexpr double PictureWidth = 350;
inline constexpr double PictureHeight = 250;

struct WaveViewInput {
    QSize inner;       // the window's inner size
    QRect currentPane; // where the pane is now
    int paneFrame = 0; // width of the pane's border on each side
    double zoom = 1;
    bool bestFit = false;
    bool firstRun = true;    // before the first Timer1 run the picture keeps its size
    int paneLeft = PaneLeft; // wider when the controls' captions need more room
};

struct WaveViewLayout {
    QRect pane;
    bool paneMoved = false; // false: the window is smaller than the pane's margins
    std::optional<QSize> picture;
    double zoom = 1;
    bool hScrollShown = false;
    bool vScrollShown = false;
    QRect hScroll;
    QRect vScroll;
    double hScrollUnit = 0; // picture pixels per percent of scroll
    double vScrollUnit = 0;
};

WaveViewLayout LayoutWaveView(const WaveViewInput& input);

// The size of the picture at a zoom.
QSize PictureSizeAt(double zoom);
// The zoom at which the picture fits a pane of this inner size, never below the floor.
double BestFitZoom(QSize paneInner);
// The progress strip's corner: right-aligned to the grid's right edge, just above the grid.
QPoint ProgressStripPlace(QPoint picture, double zoom, QSize strip);
// The picture's corner for scroll values of 0 to 100: at 100 the picture's far
// edge meets the pane's.
QPoint ScrolledPicturePlace(int hValue, int vValue, double hUnit, double vUnit);
