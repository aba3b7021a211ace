#include "wave/frmWaveSetting.h"

#include "acquire/waverecord.h"
#include "document/programiconwidgets.h"
#include "text/captionwidgets.h"
#include "text/language.h"
#include "wave/fftsetting.h"
#include "wave/frmWave.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

template <typename T> T* named(T* control, const char* name)
{
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

} // namespace

frmWaveSetting::frmWaveSetting(QMdiArea* area, QWidget* parent)
    : QDialog(parent), TabWave(named(new QTabWidget(this), "TabWave")), area_(area)
{
    setObjectName(QStringLiteral("frmWaveSetting"));
    SetWindowPicture(this, Picture::Fft);
    setModal(true);
    TabWave->addTab(named(buildPage(), "picFFTPage"), QString());
    cmdOK = named(new QPushButton(this), "cmdOK");
    cmdCancel = named(new QPushButton(this), "cmdCancel");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(TabWave);
    layout->addLayout(buttons);
    connect(cmdOK, &QPushButton::clicked, this, &frmWaveSetting::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmWaveSetting::cmdCancel_Click);
    SetCaptions(Language);
    Form_Load();
    connect(TargetCombo, &QComboBox::activated, this, &frmWaveSetting::TargetCombo_Click);
}

QWidget* frmWaveSetting::buildPage()
{
    auto* page = new QWidget;
    TreeView = named(new QTreeWidget(page), "TreeView");
    TreeView->setHeaderHidden(true);
    TreeView->setMaximumWidth(90);
    TargetCombo = named(new QComboBox(page), "TargetCombo");
    SourceCombo = named(new QComboBox(page), "SourceCombo");
    WindowCombo = named(new QComboBox(page), "WindowCombo");
    ScaleCombo = named(new QComboBox(page), "ScaleCombo");
    OptScreen[0] = named(new QRadioButton(page), "OptScreen_0");
    OptScreen[1] = named(new QRadioButton(page), "OptScreen_1");
    picFFT = named(new QLabel(page), "picFFT");
    picFFT->setMinimumSize(120, 60);
    picFFT->setStyleSheet(QStringLiteral("background: black"));
    auto* screen = new QHBoxLayout;
    screen->addWidget(OptScreen[0]);
    screen->addWidget(OptScreen[1]);
    auto* form = new QFormLayout;
    form->addRow(named(new QLabel(page), "LblTarget"), TargetCombo);
    form->addRow(named(new QLabel(page), "LblSource"), SourceCombo);
    form->addRow(named(new QLabel(page), "LblWindow"), WindowCombo);
    form->addRow(named(new QLabel(page), "LblScale"), ScaleCombo);
    form->addRow(named(new QLabel(page), "LblScreen"), screen);
    form->addRow(picFFT);
    auto* layout = new QHBoxLayout(page);
    layout->addWidget(TreeView);
    layout->addLayout(form, 1);
    return page;
}

void frmWaveSetting::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::WaveSetting,
                  {{"", 0, CaptionRole::WindowTitle},
                   {"picFFTPage", 1, CaptionRole::TabText},
                   {"LblTarget", 2},
                   {"LblSource", 3},
                   {"LblWindow", 4},
                   {"LblScale", 5},
                   {"LblScreen", 6},
                   {"OptScreen_0", 7},
                   {"OptScreen_1", 8},
                   {"cmdOK", 9},
                   {"cmdCancel", 10}},
                  language);
}

void frmWaveSetting::Form_Load()
{
    SourceCombo->addItems({QStringLiteral("CH1"), QStringLiteral("CH2")});
    WindowCombo->addItems(FftWindowNames());
    ScaleCombo->addItems(FftScaleNames(Language));
    TargetCombo->addItems(FftTargetTitles());
    for (QComboBox* list : {SourceCombo, WindowCombo, ScaleCombo, TargetCombo})
        list->setCurrentIndex(0);
    OptScreen[0]->setChecked(true);
    TreeView->addTopLevelItem(new QTreeWidgetItem(QStringList{QStringLiteral("FFT")}));
    TargetCombo_Click();
}

void frmWaveSetting::TargetCombo_Click()
{
    const FftTarget chosen = ChooseFftTarget(TargetCombo->currentText());
    cmdOK->setEnabled(chosen.okEnabled);
    if (!chosen.okEnabled) return;
    if (chosen.sources) {
        SourceCombo->clear();
        SourceCombo->addItems(*chosen.sources);
        SourceCombo->setCurrentIndex(0);
    }
    if (chosen.disablesSource) SourceCombo->setEnabled(false);
    target_ = chosen.slot;
}

void frmWaveSetting::cmdOK_Click()
{
    if (target_ < 0 || !cmdOK->isEnabled()) return;
    StoreFftPlaceholder(target_, WindowCombo->currentText(), OptScreen[0]->isChecked());
    frmWave* window = WaveWindowOf(target_);
    if (!window) window = CreateWaveWindow(area_, target_);
    window->setWindowTitle(WaveRecords[target_].WaveTitle);
    if (QWidget* frame = window->parentWidget(); qobject_cast<QMdiSubWindow*>(frame)) frame->show();
    window->show();
    accept();
}

void frmWaveSetting::cmdCancel_Click()
{
    reject();
}
