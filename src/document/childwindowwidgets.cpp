#include "document/childwindowwidgets.h"

#include <QMdiArea>
#include <QMdiSubWindow>

QMdiSubWindow* ShowChildWindow(QWidget* window, QMdiArea* area, const QString& childName)
{
    if (!area) {
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
        return nullptr;
    }
    QMdiSubWindow* child = area->addSubWindow(window);
    child->setObjectName(childName);
    // The frame's title bar shows the window's own picture, not the program's.
    child->setWindowIcon(window->windowIcon());
    child->show();
    return child;
}
