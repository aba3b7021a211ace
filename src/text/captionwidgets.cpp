#include "text/captionwidgets.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>

namespace {

QTabWidget* tabWidgetOf(QWidget* page)
{
    for (QWidget* up = page->parentWidget(); up; up = up->parentWidget())
        if (auto* tabs = qobject_cast<QTabWidget*>(up)) return tabs;
    return nullptr;
}

void setTabText(QWidget* page, const QString& text)
{
    if (QTabWidget* tabs = tabWidgetOf(page); tabs && tabs->indexOf(page) >= 0)
        tabs->setTabText(tabs->indexOf(page), text);
}

// The visible caption of a widget, by its kind.
void setWidgetCaption(QWidget* widget, const QString& text)
{
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        button->setText(text);
    else if (auto* label = qobject_cast<QLabel*>(widget))
        label->setText(text);
    else if (auto* group = qobject_cast<QGroupBox*>(widget))
        group->setTitle(text);
    else if (auto* menu = qobject_cast<QMenu*>(widget))
        menu->setTitle(text);
    else if (auto* edit = qobject_cast<QLineEdit*>(widget))
        edit->setText(text);
    else
        widget->setWindowTitle(text);
}

void setAutoCaption(QObject* target, const QString& text)
{
    if (auto* action = qobject_cast<QAction*>(target))
        action->setText(text);
    else if (auto* widget = qobject_cast<QWidget*>(target))
        setWidgetCaption(widget, text);
}

QObject* findTarget(QObject* root, const char* objectName)
{
    if (!objectName || !*objectName) return root;
    const QString name = QString::fromLatin1(objectName);
    return root->objectName() == name ? root : root->findChild<QObject*>(name);
}

} // namespace

void SetCaption(QObject* target, const QString& text, CaptionRole role)
{
    auto* widget = qobject_cast<QWidget*>(target);
    auto* action = qobject_cast<QAction*>(target);
    switch (role) {
    case CaptionRole::Auto: setAutoCaption(target, text); break;
    case CaptionRole::ToolTip:
        if (widget) widget->setToolTip(text);
        if (action) action->setToolTip(text);
        break;
    case CaptionRole::WindowTitle:
        if (widget) widget->setWindowTitle(text);
        break;
    case CaptionRole::TabText:
        if (widget) setTabText(widget, text);
        break;
    }
}

void ApplyCaptions(QObject* root, CaptionList list, std::initializer_list<CaptionBinding> bindings,
                   int language)
{
    if (!root) return;
    for (const CaptionBinding& binding : bindings) {
        QObject* target = findTarget(root, binding.objectName);
        const QString text = Caption(list, binding.slot, language);
        if (target && !text.isNull()) SetCaption(target, text, binding.role);
    }
}
