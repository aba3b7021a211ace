#include "controller/frmCtrlDialogAdjust.h"

#include "controller/ctrlstate.h"
#include "controller/fineadjust.h"
#include "document/programiconwidgets.h"
#include "text/language.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTimer>

namespace {
// A held button waits a little before it repeats, so one click makes one step.
constexpr int FirstRepeatMs = 400;
constexpr int RepeatMs = 100;
} // namespace

CtrlDialogAdjust::CtrlDialogAdjust(QWidget* parent) : QDialog(parent)
{
    setObjectName("CtrlDialogAdjust");
    SetWindowPicture(this, Picture::CtrlSetting);
    FrameAdjust = new QGroupBox(this);
    FrameAdjust->setObjectName("FrameAdjust");
    for (int i = 0; i < 2; ++i) {
        OptVoltDiv[i] = new QRadioButton(FrameAdjust);
        OptVoltDiv[i]->setObjectName(QStringLiteral("OptVoltDiv_%1").arg(i));
        connect(OptVoltDiv[i], &QRadioButton::clicked, this, [this, i] { OptVoltDiv_Click(i); });
    }
    txtDispValue = new QLineEdit(FrameAdjust);
    txtDispValue->setObjectName("txtDispValue");
    txtDispValue->setReadOnly(true);
    txtDispValue->setAlignment(Qt::AlignCenter);
    DotAddRainBtn = new QPushButton(FrameAdjust);
    DotAddRainBtn->setObjectName("DotAddRainBtn");
    DotAddRainBtn->setIcon(style()->standardIcon(QStyle::SP_ArrowUp));
    DotSubRainBtn = new QPushButton(FrameAdjust);
    DotSubRainBtn->setObjectName("DotSubRainBtn");
    DotSubRainBtn->setIcon(style()->standardIcon(QStyle::SP_ArrowDown));
    connect(DotAddRainBtn, &QPushButton::pressed, this, [this] { StepPressed(true); });
    connect(DotSubRainBtn, &QPushButton::pressed, this, [this] { StepPressed(false); });
    connect(DotAddRainBtn, &QPushButton::released, this, &CtrlDialogAdjust::StepReleased);
    connect(DotSubRainBtn, &QPushButton::released, this, &CtrlDialogAdjust::StepReleased);
    Timer1 = new QTimer(this);
    Timer1->setObjectName("Timer1");
    connect(Timer1, &QTimer::timeout, this, &CtrlDialogAdjust::Timer1_Timer);
    cmdAdjustOK = new QPushButton(this);
    cmdAdjustOK->setObjectName("cmdAdjustOK");
    cmdCancelAdjust = new QPushButton(this);
    cmdCancelAdjust->setObjectName("cmdCancelAdjust");
    connect(cmdAdjustOK, &QPushButton::clicked, this, &CtrlDialogAdjust::cmdAdjustOK_Click);
    connect(cmdCancelAdjust, &QPushButton::clicked, this, &QDialog::reject);

    auto* frame = new QGridLayout(FrameAdjust);
    frame->addWidget(OptVoltDiv[0], 0, 0);
    frame->addWidget(OptVoltDiv[1], 0, 1);
    frame->addWidget(txtDispValue, 1, 0, 2, 1);
    frame->addWidget(DotAddRainBtn, 1, 1);
    frame->addWidget(DotSubRainBtn, 2, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdAdjustOK);
    buttons->addWidget(cmdCancelAdjust);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(FrameAdjust);
    layout->addLayout(buttons);
    SetCaptions(Language);
}

void CtrlDialogAdjust::SetCaptions(int language)
{
    const bool chinese = language == LanguageChinese;
    OptVoltDiv[0]->setText(chinese ? QStringLiteral("粗调") : QStringLiteral("Coarse"));
    OptVoltDiv[1]->setText(chinese ? QStringLiteral("微调") : QStringLiteral("Fine"));
    cmdAdjustOK->setText(chinese ? QStringLiteral("确定") : QStringLiteral("OK"));
    cmdCancelAdjust->setText(chinese ? QStringLiteral("取消") : QStringLiteral("Cancel"));
}

void CtrlDialogAdjust::Load(int adjustChannel, const QString& caption)
{
    AdjustChannel = adjustChannel;
    const int channel = adjustChannel % 4;
    setWindowTitle(caption);
    FrameAdjust->setTitle(caption);
    OptVoltDiv[ChAdjustMode[size_t(channel)] ? 1 : 0]->setChecked(true);
    txtDispValue->setText(adjustChannel >= 4 ? CtrlData.ChOffset[channel + 1]
                                             : CtrlData.ChVoltDiv[channel + 1]);
    if (parentWidget()) {
        adjustSize();
        const QWidget* top = parentWidget()->window();
        move(top->geometry().center() - rect().center());
    }
}

QString CtrlDialogAdjust::value() const
{
    return txtDispValue->text();
}

void CtrlDialogAdjust::Step(bool up)
{
    const int channel = AdjustChannel % 4;
    if (AdjustChannel >= 4) {
        txtDispValue->setText(StepOffsetText(channel, value(), up ? 1 : -1));
        return;
    }
    txtDispValue->setText(
        StepVoltDivText(value(), CtrlData.ChProbe[channel + 1], OptVoltDiv[1]->isChecked(), up));
}

void CtrlDialogAdjust::StepPressed(bool up)
{
    StepCount = up ? 1 : -1;
    Step(up);
    Timer1->start(FirstRepeatMs);
}

void CtrlDialogAdjust::StepReleased()
{
    StepCount = 0;
    Timer1->stop();
}

void CtrlDialogAdjust::Timer1_Timer()
{
    if (StepCount == 0) {
        Timer1->stop();
        return;
    }
    Timer1->setInterval(RepeatMs);
    Step(StepCount > 0);
}

void CtrlDialogAdjust::OptVoltDiv_Click(int index)
{
    if (index < 0 || index > 1) return;
    OptVoltDiv[index]->setChecked(true);
    ChAdjustMode[size_t(AdjustChannel % 4)] = index == 1;
}

void CtrlDialogAdjust::cmdAdjustOK_Click()
{
    CtrlDialogAdjustOK(AdjustChannel, value());
    accept();
}
