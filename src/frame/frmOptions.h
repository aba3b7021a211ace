#pragma once
// The options dialog: start-up choices, refresh, and the link's transport, port,
// baud rate and VISA device.

#include <QDialog>
#include <array>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTabWidget;

class frmOptions : public QDialog {
    Q_OBJECT
  public:
    explicit frmOptions(QWidget* parent = nullptr);

    // Set when OK ended the dialog.
    bool OkClicked = false;

    void cmdOK_Click();
    void cmdCancel_Click();

  private:
    QWidget* makeGeneralPage();
    QWidget* makeRefreshPage();
    QWidget* makeIoPage();
    void setCaptions(int language);
    void Form_Load();
    void fillDeviceCombo();

    QTabWidget* tbsOptions;
    std::array<QWidget*, 3> picOptions{};
    QCheckBox* HardwareCheck;
    QCheckBox* SheetStartLoadChk;
    QCheckBox* CtrlStartLoadChk;
    std::array<QRadioButton*, 2> OptRefreshType{};
    QComboBox* IntervalCombo;
    std::array<QRadioButton*, 2> PortSelectOption{};
    QComboBox* PortCombo;
    QComboBox* BaudCombo;
    QComboBox* GPIB_AddrCombo;
    QComboBox* DeviceCombo;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};
