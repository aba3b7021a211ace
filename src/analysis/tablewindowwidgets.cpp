#include "analysis/tablewindowwidgets.h"

#include "acquire/frmPrgress.h"
#include "acquire/operation.h"
#include "document/programiconwidgets.h"
#include "link/linkstate.h"
#include "text/captionwidgets.h"
#include "text/language.h"
#include "wave/refreshloop.h"
#include "wave/wavechannels.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int FollowIntervalMs = 500;

QIcon refreshIcon(bool stop)
{
    return ProgramIcon(stop ? Picture::Stop : Picture::Refresh);
}

template <typename T> T* named(T* control, const QString& name)
{
    control->setObjectName(name);
    return control;
}

} // namespace

TableWindowBase::TableWindowBase(int slot, WindowTable& forms, QWidget* parent)
    : QWidget(parent), slot_(slot >= 0 && slot < SlotCount ? slot : 0), forms_(forms)
{
    forms_[size_t(slot_)] = this;
    setFocusPolicy(Qt::StrongFocus);
    cmdRefresh = named(new QPushButton(this), QStringLiteral("cmdRefresh"));
    cmdRefresh->setIcon(refreshIcon(false));
    cmdExport = named(new QPushButton(this), QStringLiteral("cmdExport"));
    cmdExport->setIcon(ProgramIcon(Picture::Export));
    buttonRow = new QHBoxLayout;
    buttonRow->addWidget(cmdRefresh);
    for (int k = 0; k < 4; ++k) {
        OptionCH[k] = named(new QRadioButton(QStringLiteral("CH%1").arg(k + 1), this),
                            QStringLiteral("OptionCH_%1").arg(k));
        OptionCH[k]->setAutoExclusive(false);
        OptionCH[k]->setEnabled(false);
        buttonRow->addWidget(OptionCH[k]);
        connect(OptionCH[k], &QRadioButton::clicked, this, [this, k] { OptionCH_Click(k); });
    }
    buttonRow->addStretch(1);
    buttonRow->addWidget(cmdExport);
    SettingLabel = named(new QLabel(this), QStringLiteral("SettingLabel"));
    SettingLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    MeasureView = named(new QTreeWidget(this), QStringLiteral("MeasureView"));
    MeasureView->setRootIsDecorated(false);
    MeasureView->setUniformRowHeights(true);
    MeasureView->setAlternatingRowColors(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(buttonRow);
    layout->addWidget(SettingLabel);
    layout->addWidget(MeasureView, 1);
    Timer1 = named(new QTimer(this), QStringLiteral("Timer1"));
    Timer2 = named(new QTimer(this), QStringLiteral("Timer2"));
    RefreshLoop::Hooks hooks;
    hooks.load = [this] { LoadData(); };
    hooks.autoRefreshing = [this]() -> bool& { return autoRefreshing(); };
    hooks.showStop = [this](bool stop) { cmdRefresh->setIcon(refreshIcon(stop)); };
    hooks.enableButton = [this](bool on) { cmdRefresh->setEnabled(on); };
    loop = new RefreshLoop(Timer2, hooks, this);
    connect(cmdRefresh, &QPushButton::clicked, this, &TableWindowBase::cmdRefresh_Click);
    connect(cmdExport, &QPushButton::clicked, this, [this] { cmdExport_Click(); });
    connect(Timer1, &QTimer::timeout, this, &TableWindowBase::Timer1_Timer);
    Timer1->start(0);
}

TableWindowBase::~TableWindowBase()
{
    if (forms_[size_t(slot_)] == this) forms_[size_t(slot_)] = nullptr;
}

void TableWindowBase::setSlot(int slot)
{
    if (slot < 0 || slot >= SlotCount || slot == slot_) return;
    if (forms_[size_t(slot_)] == this) forms_[size_t(slot_)] = nullptr;
    slot_ = slot;
    forms_[size_t(slot_)] = this;
}

// Both lists open with the two buttons and end with their two tooltips.
void TableWindowBase::setButtonTexts(CaptionList list, int language)
{
    const int tips = CaptionSlotCount(list) - 2;
    ApplyCaptions(this, list,
                  {{"cmdRefresh", 0},
                   {"cmdExport", 1},
                   {"cmdRefresh", tips, CaptionRole::ToolTip},
                   {"cmdExport", tips + 1, CaptionRole::ToolTip}},
                  language);
}

void TableWindowBase::cmdRefresh_Click()
{
    loop->press();
}

int TableWindowBase::selectedChannel() const
{
    for (int k = 0; k < 4; ++k)
        if (OptionCH[k]->isChecked()) return k + 1;
    return 0;
}

void TableWindowBase::selectChannel(int channel)
{
    for (int k = 0; k < 4; ++k)
        OptionCH[k]->setChecked(k + 1 == channel);
}

void TableWindowBase::OptionCH_Click(int index)
{
    selectChannel(index + 1);
}

void TableWindowBase::Timer1_Timer()
{
    followDisplaySwitches();
    if (!firstRun_) return;
    firstRun_ = false;
    Timer1->setInterval(FollowIntervalMs);
    firstShow();
}

// A channel the instrument doesn't show can't be read; if none is chosen then,
// the first that is shown is.
void TableWindowBase::followDisplaySwitches()
{
    const DisplaySwitches on = CurrentDisplaySwitches();
    for (int k = 0; k < 4; ++k) {
        OptionCH[k]->setEnabled(on[size_t(k)]);
        if (!on[size_t(k)]) OptionCH[k]->setChecked(false);
    }
    if (selectedChannel() != 0) return;
    for (int k = 0; k < 4; ++k)
        if (on[size_t(k)]) {
            OptionCH_Click(k);
            return;
        }
}

bool TableWindowBase::runReading(int code, const QString& caption)
{
    return frmPrgress::RunReading({code}, caption, this);
}

void TableWindowBase::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers held =
        event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    if (event->key() == Qt::Key_F5 && held == Qt::NoModifier) {
        cmdRefresh_Click();
        return;
    }
    QWidget::keyPressEvent(event);
}

// A window under a reading stays; one in interval refresh stops it as it goes.
void TableWindowBase::closeEvent(QCloseEvent* event)
{
    if (Connecting || loop->busy()) {
        event->ignore();
        return;
    }
    loop->stop();
    event->accept();
}
