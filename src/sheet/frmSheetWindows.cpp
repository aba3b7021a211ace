#include "sheet/frmSheetWindows.h"

#include "analysis/frmData.h"
#include "analysis/frmMeasure.h"
#include "stored/frmOpenWaveform.h"
#include "stored/frmRecordPlay.h"
#include "wave/frmWave.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QString>

namespace {

constexpr const char* TagProperty = "Tag";

// A kind with no window of its own gets an empty frame of the right name and size.
QMdiSubWindow* makeEmptyWindow(QMdiArea* area, SheetKind kind)
{
    auto* content = new QWidget;
    content->setObjectName(KindWindowName(kind));
    content->resize(480, 320);
    return area->addSubWindow(content);
}

QMdiSubWindow* frameOf(QWidget* window)
{
    return window ? qobject_cast<QMdiSubWindow*>(window->parentWidget()) : nullptr;
}

QMdiSubWindow* makeWindow(QMdiArea* area, SheetKind kind, int slot)
{
    switch (kind) {
    case SheetKind::Wave: return frameOf(CreateWaveWindow(area, slot));
    case SheetKind::Measure: return frameOf(CreateMeasureWindow(area, slot));
    case SheetKind::Data: return frameOf(CreateDataWindow(area, slot));
    case SheetKind::MemoryWave: return frameOf(CreateMemoryWaveWindow(area, slot));
    case SheetKind::Record: return frameOf(CreateRecordPlayWindow(area, slot));
    default: return makeEmptyWindow(area, kind);
    }
}

} // namespace

QMdiSubWindow* CreateSheetWindow(QMdiArea* area, SheetKind kind, int slot, const QString& name)
{
    if (!area) return nullptr;
    QMdiSubWindow* window = makeWindow(area, kind, slot);
    if (!window) return nullptr;
    window->setAttribute(Qt::WA_DeleteOnClose);
    SetWindowTag(window, slot);
    SetWindowName(window, name);
    window->show();
    return window;
}

QMdiSubWindow* OpenSheetWindow(SheetKind kind, int slot)
{
    switch (kind) {
    case SheetKind::Wave: return frameOf(WaveWindowOf(slot));
    case SheetKind::Measure: return frameOf(MeasureWindowOf(slot));
    case SheetKind::Data: return frameOf(DataWindowOf(slot));
    default: return nullptr;
    }
}

void SetWindowTag(QMdiSubWindow* window, int slot)
{
    if (!window || !window->widget()) return;
    if (auto* wave = qobject_cast<frmWave*>(window->widget()))
        wave->setSlot(slot);
    else if (auto* table = qobject_cast<TableWindowBase*>(window->widget()))
        table->setSlot(slot);
    else if (auto* memory = qobject_cast<frmOpenWaveform*>(window->widget()))
        memory->setSlot(slot);
    else
        window->widget()->setProperty(TagProperty, QString::number(slot));
}

int WindowTag(const QMdiSubWindow* window)
{
    if (!window || !window->widget()) return -1;
    if (auto* wave = qobject_cast<const frmWave*>(window->widget())) return wave->slot();
    if (auto* table = qobject_cast<const TableWindowBase*>(window->widget())) return table->slot();
    if (auto* memory = qobject_cast<const frmOpenWaveform*>(window->widget())) return memory->slot();
    bool ok = false;
    const int slot = window->widget()->property(TagProperty).toString().toInt(&ok);
    return ok ? slot : -1;
}

void SetWindowName(QMdiSubWindow* window, const QString& name)
{
    if (window && window->widget()) window->widget()->setWindowTitle(name);
}
