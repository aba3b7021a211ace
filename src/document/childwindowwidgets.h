#pragma once
// Showing a sheet's child window: inside the main window's MDI area as a
// sub-window with a stable name, or alone (deleted when closed) where there is
// no area, as in tests and tools.

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

class QMdiArea;
class QMdiSubWindow;
class QWidget;

// Shows window at its whole size, cascaded from the last sub-window, and
// returns its sub-window, or null when it stands alone.
QMdiSubWindow* ShowChildWindow(QWidget* window, QMdiArea* area, const QString& childName);

// Where a new sub-window of size child goes in an area: step right and down from
// the last one (a null rect: none), back to the corner when it would leave the area.
QPoint CascadePlace(const QRect& last, QSize child, QSize area, int step);
