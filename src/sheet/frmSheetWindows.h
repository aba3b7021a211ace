#pragma once
// The child windows of a data sheet as the tree sees them: made by kind inside
// the main window's area, each holding its slot number as its tag text.

#include "document/sheetkinds.h"

class QMdiArea;
class QMdiSubWindow;
class QString;

// Makes the kind's window for a slot, captioned with its name; null without an area.
QMdiSubWindow* CreateSheetWindow(QMdiArea* area, SheetKind kind, int slot, const QString& name);
// The kind's open window of a slot, however it was opened; null when there is none.
QMdiSubWindow* OpenSheetWindow(SheetKind kind, int slot);
void SetWindowTag(QMdiSubWindow* window, int slot);
// The slot number in a window's tag; -1 when it has none.
int WindowTag(const QMdiSubWindow* window);
void SetWindowName(QMdiSubWindow* window, const QString& name);
