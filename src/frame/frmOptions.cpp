#include "frame/frmOptions.h"

#include "document/programiconwidgets.h"
#include "frame/optionschoice.h"
#include "link/linkstate.h"
#include "settings/softwaresettings.h"
#include "text/captionwidgets.h"
#include "text/language.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

template <typename T> T* named(QWidget* parent, const QString& name)
{
    auto* child = new T(parent);
    child->setObjectName(name);
    return child;
}

QComboBox* namedCombo(QWidget* parent, const char* name, const QStringList& rows)
{
    auto* combo = named<QComboBox>(parent, QString::fromLatin1(name));
    combo->setEditable(true);
    combo->addItems(rows);
    return combo;
}

QStringList numberedRows(const QString& prefix, int first, int last)
{
    QStringList rows;
    for (int i = first; i <= last; ++i)
        rows.append(prefix + QString::number(i));
    return rows;
}

QLabel* namedLabel(QWidget* parent, const char* name)
{
    return named<QLabel>(parent, QString::fromLatin1(name));
}

// The option-button pair of a control array: NAME_0 and NAME_1.
std::array<QRadioButton*, 2> optionPair(QWidget* parent, const char* name)
{
    const QString base = QString::fromLatin1(name);
    return {named<QRadioButton>(parent, base + QStringLiteral("_0")),
            named<QRadioButton>(parent, base + QStringLiteral("_1"))};
}

const QString NoDeviceEnglish = QStringLiteral("No Device");
const QString NoDeviceChinese = QStringLiteral("无设备");

} // namespace

frmOptions::frmOptions(QWidget* parent) : QDialog(parent)
{
    setObjectName("frmOptions");
    SetWindowPicture(this, Picture::Options);
    tbsOptions = named<QTabWidget>(this, QStringLiteral("tbsOptions"));
    picOptions = {makeGeneralPage(), makeRefreshPage(), makeIoPage()};
    for (QWidget* page : picOptions)
        tbsOptions->addTab(page, QString());
    cmdOK = named<QPushButton>(this, QStringLiteral("cmdOK"));
    cmdCancel = named<QPushButton>(this, QStringLiteral("cmdCancel"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmOptions::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmOptions::cmdCancel_Click);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tbsOptions);
    layout->addLayout(buttons);
    setCaptions(Language);
    Form_Load();
}

QWidget* frmOptions::makeGeneralPage()
{
    auto* page = named<QWidget>(this, QStringLiteral("picOptions_0"));
    auto* frame = named<QGroupBox>(page, QStringLiteral("fraStartup"));
    HardwareCheck = named<QCheckBox>(frame, QStringLiteral("HardwareCheck"));
    SheetStartLoadChk = named<QCheckBox>(frame, QStringLiteral("SheetStartLoadChk"));
    CtrlStartLoadChk = named<QCheckBox>(frame, QStringLiteral("CtrlStartLoadChk"));
    auto* column = new QVBoxLayout(frame);
    for (QWidget* box : {HardwareCheck, SheetStartLoadChk, CtrlStartLoadChk})
        column->addWidget(box);
    (new QVBoxLayout(page))->addWidget(frame);
    return page;
}

QWidget* frmOptions::makeRefreshPage()
{
    auto* page = named<QWidget>(this, QStringLiteral("picOptions_1"));
    auto* frame = named<QGroupBox>(page, QStringLiteral("fraTime"));
    OptRefreshType = optionPair(frame, "OptRefreshType");
    IntervalCombo = namedCombo(frame, "IntervalCombo", {"1", "2", "5", "10", "20"});
    connect(OptRefreshType[1], &QRadioButton::toggled, IntervalCombo, &QWidget::setEnabled);
    auto* form = new QFormLayout(frame);
    form->addRow(OptRefreshType[0]);
    form->addRow(OptRefreshType[1]);
    form->addRow(namedLabel(frame, "lblInterval"), IntervalCombo);
    (new QVBoxLayout(page))->addWidget(frame);
    return page;
}

QWidget* frmOptions::makeIoPage()
{
    auto* page = named<QWidget>(this, QStringLiteral("picOptions_2"));
    PortSelectOption = optionPair(page, "PortSelectOption");
    PortSelectOption[0]->setText(QStringLiteral("VISA"));
    PortSelectOption[1]->setText(QStringLiteral("RS232"));
    auto* serial = named<QGroupBox>(page, QStringLiteral("fraRS232"));
    PortCombo = namedCombo(serial, "PortCombo", numberedRows(QStringLiteral("COM"), 1, 16));
    BaudCombo = namedCombo(serial, "BaudCombo", {"300", "2400", "4800", "9600", "19200", "38400"});
    auto* serialForm = new QFormLayout(serial);
    serialForm->addRow(namedLabel(serial, "lblPort"), PortCombo);
    serialForm->addRow(namedLabel(serial, "lblBaud"), BaudCombo);
    GPIB_AddrCombo = namedCombo(page, "GPIB_AddrCombo", numberedRows(QString(), 0, 30));
    DeviceCombo = named<QComboBox>(page, QStringLiteral("DeviceCombo"));
    auto* form = new QFormLayout(page);
    form->addRow(PortSelectOption[0], PortSelectOption[1]);
    form->addRow(serial);
    form->addRow(new QLabel(QStringLiteral("GPIB"), page), GPIB_AddrCombo);
    form->addRow(namedLabel(page, "lblDevice"), DeviceCombo);
    return page;
}

void frmOptions::setCaptions(int language)
{
    constexpr CaptionRole tab = CaptionRole::TabText;
    ApplyCaptions(this, CaptionList::Options,
                  {{"", 0},
                   {"picOptions_0", 1, tab},
                   {"picOptions_1", 2, tab},
                   {"cmdOK", 3},
                   {"cmdCancel", 4},
                   {"picOptions_2", 5, tab},
                   {"fraStartup", 6},
                   {"HardwareCheck", 7},
                   {"SheetStartLoadChk", 8},
                   {"CtrlStartLoadChk", 9},
                   {"fraTime", 10},
                   {"OptRefreshType_0", 11},
                   {"OptRefreshType_1", 12},
                   {"lblInterval", 13},
                   {"fraRS232", 14},
                   {"lblPort", 15},
                   {"lblBaud", 16},
                   {"lblDevice", 17}},
                  language);
}

void frmOptions::Form_Load()
{
    HardwareCheck->setChecked(StartupCheckHardware);
    SheetStartLoadChk->setChecked(StartupLoadSheet);
    CtrlStartLoadChk->setChecked(StartupLoadCtrl);
    const bool automatic = RefreshType == RefreshAuto;
    OptRefreshType[automatic ? 1 : 0]->setChecked(true);
    IntervalCombo->setEnabled(automatic);
    IntervalCombo->setCurrentText(QString::number(RefreshInterval / 1000));
    PortSelectOption[TransportType == 2 ? 1 : 0]->setChecked(true);
    PortCombo->setCurrentText(QStringLiteral("COM") + QString::number(ComPort));
    BaudCombo->setCurrentText(BaudRate);
    GPIB_AddrCombo->setCurrentText(QString::number(GpibAddress));
    fillDeviceCombo();
}

// Each row shows a shortened name and keeps the full one; no device leaves one row without.
void frmOptions::fillDeviceCombo()
{
    DeviceCombo->clear();
    for (const QString& resource : FindUsbResources())
        DeviceCombo->addItem(ShortResourceText(resource), resource);
    if (DeviceCombo->count() == 0)
        DeviceCombo->addItem(IsChinese(Language) ? NoDeviceChinese : NoDeviceEnglish, QString());
    const int chosen = DeviceCombo->findData(ResourceName);
    if (chosen >= 0) DeviceCombo->setCurrentIndex(chosen);
}

void frmOptions::cmdOK_Click()
{
    OptionsChoice choice;
    choice.startupCheckHardware = HardwareCheck->isChecked();
    choice.startupLoadSheet = SheetStartLoadChk->isChecked();
    choice.startupLoadCtrl = CtrlStartLoadChk->isChecked();
    choice.autoRefresh = OptRefreshType[1]->isChecked();
    choice.intervalText = IntervalCombo->currentText();
    choice.rs232 = PortSelectOption[1]->isChecked();
    choice.portText = PortCombo->currentText();
    choice.baudText = BaudCombo->currentText();
    choice.gpibText = GPIB_AddrCombo->currentText();
    choice.resource = DeviceCombo->currentData().toString();
    ApplyOptions(choice);
    OkClicked = true;
    accept();
}

void frmOptions::cmdCancel_Click()
{
    reject();
}
