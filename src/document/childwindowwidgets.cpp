#include "document/childwindowwidgets.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStyle>

namespace {

// The sub-window made before this one, if it still stands in the area as a window.
QMdiSubWindow* lastPlaced(QMdiArea* area, const QMdiSubWindow* child)
{
    const QList<QMdiSubWindow*> windows = area->subWindowList(QMdiArea::CreationOrder);
    for (auto it = windows.crbegin(); it != windows.crend(); ++it)
        if (*it != child && (*it)->isVisible() && !(*it)->isMinimized() && !(*it)->isMaximized()) return *it;
    return nullptr;
}

} // namespace

QPoint CascadePlace(const QRect& last, QSize child, QSize area, int step)
{
    if (last.isNull()) return {};
    const QPoint next = last.topLeft() + QPoint(step, step);
    if (next.x() < 0 || next.y() < 0) return {};
    // A window larger than the area can't lie inside it: it still steps down from
    // the last, so every title bar shows, until it reaches the area's middle.
    const bool fitsAtAll = child.width() <= area.width() && child.height() <= area.height();
    const bool nextFits =
        fitsAtAll ? next.x() + child.width() <= area.width() && next.y() + child.height() <= area.height()
                  : next.x() <= area.width() / 2 && next.y() <= area.height() / 2;
    return nextFits ? next : QPoint();
}

QMdiSubWindow* ShowChildWindow(QWidget* window, QMdiArea* area, const QString& childName)
{
    if (!area) {
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
        return nullptr;
    }
    // The window's whole size, not one cut to the area: the area scrolls to the rest.
    // A window without a size hint has sized itself.
    const QSize hint = window->sizeHint();
    const QSize whole = hint.isValid() ? hint.expandedTo(window->minimumSizeHint()) : window->size();
    QMdiSubWindow* child = area->addSubWindow(window);
    if (!childName.isEmpty()) child->setObjectName(childName);
    // The frame's title bar shows the window's own picture, not the program's.
    child->setWindowIcon(window->windowIcon());
    child->show();
    child->resize(child->size() + whole - window->size());
    const QMdiSubWindow* last = lastPlaced(area, child);
    child->move(CascadePlace(last ? last->geometry() : QRect(), child->size(), area->viewport()->size(),
                             child->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, child)));
    return child;
}
