#include "analysis/frmPassFailed.h"

#include "analysis/measurejudge.h"
#include "document/programiconwidgets.h"
#include "document/sheetstate.h"
#include "platform/platform.h"
#include "text/language.h"
#include "text/messages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

template <typename T> T* named(T* control, const char* name)
{
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

// A small arrow: down to the under limit, up to the over limit.
QPixmap limitArrow(bool up)
{
    QPixmap image(14, 14);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(up ? QColor(220, 60, 60) : QColor(0, 128, 255));
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(up ? QPolygon({QPoint(7, 1), QPoint(13, 12), QPoint(1, 12)})
                           : QPolygon({QPoint(1, 2), QPoint(13, 2), QPoint(7, 13)}));
    return image;
}

// A number as typed: a leading "-" aside, the rest must read whole as a number.
bool isNumeric(const QString& text)
{
    bool ok = false;
    text.trimmed().toDouble(&ok);
    return ok;
}

} // namespace

frmPassFailed::frmPassFailed(int slot, const QString& windowTitle, QWidget* parent)
    : QDialog(parent), slot_(slot >= 0 && slot < MeasureRecordCount ? slot : 0), windowTitle_(windowTitle)
{
    setObjectName(QStringLiteral("frmPassFailed"));
    SetWindowPicture(this, Picture::Measure);
    setModal(true);
    buildControls();
    connectControls();
    Timer1 = named(new QTimer(this), "Timer1");
    Timer1->setSingleShot(true);
    connect(Timer1, &QTimer::timeout, this, &frmPassFailed::Timer1_Timer);
    Timer1->start(0);
}

void frmPassFailed::buildControls()
{
    TitleLabel = named(new QLabel(this), "TitleLabel");
    QFont bold = TitleLabel->font();
    bold.setBold(true);
    TitleLabel->setFont(bold);
    TypeLabel = named(new QLabel(this), "TypeLabel");
    MTypeCombo = named(new QComboBox(this), "MTypeCombo");
    EnabledChk = named(new QCheckBox(this), "EnabledChk");
    RangeFrame = named(new QGroupBox(this), "RangeFrame");
    UnderLabel = named(new QLabel(RangeFrame), "UnderLabel");
    OverLabel = named(new QLabel(RangeFrame), "OverLabel");
    UnderPic = named(new QLabel(RangeFrame), "UnderPic");
    UnderPic->setPixmap(limitArrow(false));
    OverPic = named(new QLabel(RangeFrame), "OverPic");
    OverPic->setPixmap(limitArrow(true));
    UnderNum = named(new QLineEdit(RangeFrame), "UnderNum");
    OverNum = named(new QLineEdit(RangeFrame), "OverNum");
    UnderUnit = named(new QComboBox(RangeFrame), "UnderUnit");
    OverUnit = named(new QComboBox(RangeFrame), "OverUnit");
    OKButton = named(new QPushButton(this), "OKButton");
    CancelButton = named(new QPushButton(this), "CancelButton");
    OKButton->setAutoDefault(false);
    auto* grid = new QGridLayout(RangeFrame);
    grid->addWidget(UnderPic, 0, 0);
    grid->addWidget(UnderLabel, 0, 1);
    grid->addWidget(UnderNum, 0, 2);
    grid->addWidget(UnderUnit, 0, 3);
    grid->addWidget(OverPic, 1, 0);
    grid->addWidget(OverLabel, 1, 1);
    grid->addWidget(OverNum, 1, 2);
    grid->addWidget(OverUnit, 1, 3);
    auto* type = new QHBoxLayout;
    type->addWidget(TypeLabel);
    type->addWidget(MTypeCombo, 1);
    type->addWidget(EnabledChk);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(OKButton);
    buttons->addWidget(CancelButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(TitleLabel);
    layout->addLayout(type);
    layout->addWidget(RangeFrame);
    layout->addLayout(buttons);
}

void frmPassFailed::connectControls()
{
    connect(MTypeCombo, &QComboBox::currentIndexChanged, this, &frmPassFailed::ShowMeasureLimits);
    connect(EnabledChk, &QCheckBox::clicked, this, [this] {
        ApplyEnabled();
        ShowMeasureLimits();
    });
    connect(UnderNum, &QLineEdit::textChanged, this, [this] { numberChanged(UnderNum, false); });
    connect(OverNum, &QLineEdit::textChanged, this, [this] { numberChanged(OverNum, true); });
    connect(UnderUnit, &QComboBox::currentIndexChanged, this, [this] { unitChanged(false); });
    connect(OverUnit, &QComboBox::currentIndexChanged, this, [this] { unitChanged(true); });
    connect(OKButton, &QPushButton::clicked, this, &frmPassFailed::OKButton_Click);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

void frmPassFailed::SetCaptions(int language)
{
    const bool zh = IsChinese(language);
    setWindowTitle((zh ? QStringLiteral("通过&失败设置 [") : QStringLiteral("Pass & Fail Setting [")) +
                   windowTitle_ + QLatin1Char(']'));
    TitleLabel->setText(zh ? QStringLiteral("通过 | 失败设置") : QStringLiteral("Pass | Fail Settings"));
    TypeLabel->setText(zh ? QStringLiteral("选择测量参数") : QStringLiteral("Select Measure Type"));
    EnabledChk->setText(zh ? QStringLiteral("使能") : QStringLiteral("Enabled"));
    RangeFrame->setTitle(zh ? QStringLiteral("通过参数范围设置") : QStringLiteral("Pass Range Settings"));
    UnderLabel->setText(zh ? QStringLiteral("下限设置") : QStringLiteral("Under Limit Setting"));
    OverLabel->setText(zh ? QStringLiteral("上限设置") : QStringLiteral("Over Limit Setting"));
    OKButton->setText(zh ? QStringLiteral("确定") : QStringLiteral("OK"));
    CancelButton->setText(zh ? QStringLiteral("取消") : QStringLiteral("Cancel"));
}

void frmPassFailed::Timer1_Timer()
{
    Timer1->stop(); // once only, also when called before the timer fired
    SetCaptions(Language);
    Updating = true;
    Editing = true;
    copy_ = MeasureRecords[size_t(slot_)];
    const QSignalBlocker quiet(MTypeCombo);
    MTypeCombo->clear();
    for (int row = 0; row < MeasureItemCount; ++row)
        MTypeCombo->addItem(MeasureItemName(row, Language));
    MTypeCombo->setCurrentIndex(0);
    ShowMeasureLimits();
    MTypeCombo->setFocus();
}

int frmPassFailed::selectedRow() const
{
    return std::clamp(MTypeCombo->currentIndex(), 0, MeasureItemCount - 1);
}

MeasureItem& frmPassFailed::selectedItem()
{
    return copy_.Items[size_t(MeasureItems[size_t(selectedRow())].slot)];
}

MeasureFamily frmPassFailed::selectedFamily() const
{
    return MeasureItems[size_t(selectedRow())].family;
}

void frmPassFailed::ShowMeasureLimits()
{
    Updating = false;
    const MeasureFamily family = selectedFamily();
    const MeasureItem& item = selectedItem();
    const LimitParts under = SplitLimit(family, item.UnderLimit);
    const LimitParts over = SplitLimit(family, item.OverLimit);
    for (QComboBox* unit : {UnderUnit, OverUnit}) {
        unit->clear();
        unit->addItems(MeasureUnits(family));
    }
    UnderNum->setText(under.number);
    UnderUnit->setCurrentIndex(under.unitIndex);
    OverNum->setText(over.number);
    OverUnit->setCurrentIndex(over.unitIndex);
    for (QWidget* control :
         std::initializer_list<QWidget*>{UnderNum, UnderUnit, UnderPic, OverNum, OverUnit, OverPic})
        control->setEnabled(item.Enabled);
    ShowEnabled();
    Updating = true;
}

void frmPassFailed::ApplyEnabled()
{
    selectedItem().Enabled = EnabledChk->isChecked();
}

void frmPassFailed::ShowEnabled()
{
    EnabledChk->setChecked(selectedItem().Enabled);
}

void frmPassFailed::numberChanged(QLineEdit* field, bool over)
{
    if (!Updating || !Editing) return;
    const QString text = field->text();
    if (text.isEmpty()) return;
    const QString tested = text.startsWith(QLatin1Char('-')) ? text.mid(1) : text;
    if (tested.isEmpty()) return; // a minus on its own: the user is still typing
    if (!isNumeric(tested)) {
        MsgBox(MsgNumeric, vbCritical);
        field->clear();
        return;
    }
    if (!over) {
        SetUnderNum();
        return;
    }
    SetOverNum();
    SetOverNumLimit();
}

void frmPassFailed::unitChanged(bool over)
{
    if (!Updating || !Editing) return;
    if (!over) {
        SetUnderNum();
        return;
    }
    SetOverNum();
    SetOverNumLimit();
}

double frmPassFailed::parseLimit(QLineEdit* number, QComboBox* unit) const
{
    return ParseMeasureValue(selectedFamily(), number->text() + unit->currentText());
}

void frmPassFailed::SetUnderNum()
{
    Editing = false;
    selectedItem().UnderLimit = parseLimit(UnderNum, UnderUnit);
    Editing = true;
}

void frmPassFailed::SetOverNum()
{
    Editing = false;
    selectedItem().OverLimit = parseLimit(OverNum, OverUnit);
    Editing = true;
}

// The under limit follows an over limit set below it, in the fields too.
void frmPassFailed::SetOverNumLimit()
{
    MeasureItem& item = selectedItem();
    if (!(item.OverLimit < item.UnderLimit)) return;
    item.UnderLimit = item.OverLimit;
    Editing = false;
    UnderNum->setText(OverNum->text());
    UnderUnit->setCurrentIndex(OverUnit->currentIndex());
    Editing = true;
}

// Only Vpp's pair is checked, whichever item is selected.
void frmPassFailed::OKButton_Click()
{
    const MeasureItem& vpp = copy_.Items[0];
    if (vpp.OverLimit >= vpp.UnderLimit) {
        MeasureRecords[size_t(slot_)] = copy_;
        DataSheetDirty = true;
        accept();
        return;
    }
    SetOverNumLimit();
    ShowMeasureLimits();
}
