#include "sheet/frmSheetWindows.h"

#include "wave/frmWave.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QString>

namespace {

constexpr const char* tagProperty = "Tag";

// Measure, data, memory wave and record windows start as empty frames of the
// right name and size until their own windows land.
QMdiSubWindow* makeEmptyWindow(QMdiArea* area, SheetKind kind)
{
    auto* content = new QWidget;
    content->setObjectName(KindWindowName(kind));
    content->resize(480, 320);
    return area->addSubWindow(content);
}

QMdiSubWindow* makeWaveWindow(QMdiArea* area, int slot)
{
    frmWave* wave = CreateWaveWindow(area, slot);
    return wave ? qobject_cast<QMdiSubWindow*>(wave->parentWidget()) : nullptr;
}

} // namespace

QMdiSubWindow* CreateSheetWindow(QMdiArea* area, SheetKind kind, int slot, const QString& name)
{
    if (!area) return nullptr;
    QMdiSubWindow* window =
        kind == SheetKind::Wave ? makeWaveWindow(area, slot) : makeEmptyWindow(area, kind);
    if (!window) return nullptr;
    window->setAttribute(Qt::WA_DeleteOnClose);
    SetWindowTag(window, slot);
    SetWindowName(window, name);
    window->show();
    return window;
}

void SetWindowTag(QMdiSubWindow* window, int slot)
{
    if (!window || !window->widget()) return;
    if (auto* wave = qobject_cast<frmWave*>(window->widget()))
        wave->setSlot(slot);
    else
        window->widget()->setProperty(tagProperty, QString::number(slot));
}

int WindowTag(const QMdiSubWindow* window)
{
    if (!window || !window->widget()) return -1;
    if (auto* wave = qobject_cast<const frmWave*>(window->widget())) return wave->slot();
    bool ok = false;
    const int slot = window->widget()->property(tagProperty).toString().toInt(&ok);
    return ok ? slot : -1;
}

void SetWindowName(QMdiSubWindow* window, const QString& name)
{
    if (window && window->widget()) window->widget()->setWindowTitle(name);
}
