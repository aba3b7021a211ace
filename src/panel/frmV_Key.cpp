#include "panel/frmV_Key.h"

#include "document/programiconwidgets.h"
#include "link/devicefacts.h"
#include "panel/keysetwidgets.h"
#include "panel/panelstate.h"
#include "panel/panelwindows.h"
#include "text/captionwidgets.h"
#include "text/language.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPointer>
#include <QTimer>

frmV_Key::frmV_Key(QWidget* parent)
    : QWidget(parent, Qt::Window), keys_(new KeySetWidgets(this, KeySet::Keyboard))
{
    setObjectName("frmV_Key");
    SetWindowPicture(this, Picture::Keyboard);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(keys_->softKeys(), 0, Qt::AlignVCenter);
    layout->addWidget(keys_->groups());
    PanelFlags.KeyboardOpen = true;
    keys_->ShowLaKey(HasLa);
    SetCaptions(Language);
}

frmV_Key::~frmV_Key()
{
    PanelFlags.KeyboardOpen = false;
}

void frmV_Key::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::VirtualKeyboard, {{"", 0}}, language);
    keys_->SetCaptions(language);
}

void frmV_Key::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) return void(close());
    QWidget::keyPressEvent(event);
}

void frmV_Key::closeEvent(QCloseEvent* event)
{
    PanelFlags.KeyboardOpen = false;
    keys_->stop();
    event->accept();
}

frmV_Key* ShowVirtualKeyboard(QWidget* parent)
{
    static QPointer<frmV_Key> open;
    if (!open) open = new frmV_Key(parent);
    open->show();
    open->raise();
    open->activateWindow();
    return open;
}
