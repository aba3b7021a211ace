#pragma once
// Showing a sheet's child window: inside the main window's MDI area as a
// sub-window with a stable name, or alone (deleted when closed) where there is
// no area, as in tests and tools.

#include <QString>

class QMdiArea;
class QMdiSubWindow;
class QWidget;

// Shows window and returns its sub-window, or null when it stands alone.
QMdiSubWindow* ShowChildWindow(QWidget* window, QMdiArea* area, const QString& childName);
