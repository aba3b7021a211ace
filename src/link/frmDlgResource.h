#pragma once
// DlgResource: the chooser UsbOpen shows when more than one VISA resource was
// found. OK (or a double click on a row) takes the text of cmbResource as
// ResourceName.

#include <QDialog>
#include <QStringList>

class QComboBox;
class QLabel;
class QPushButton;

class frmDlgResource : public QDialog {
    Q_OBJECT

  public:
    explicit frmDlgResource(QWidget* parent = nullptr);

    // Whether OK ended the dialog.
    bool GetOkCancel() const { return okPressed_; }
    // Sets the captions for the language.
    void LoadDlgResource(int language);
    // Clears the list and fills it with the rows; the row shown first is
    // ResourceName when it is listed.
    void SetResourceRows(const QStringList& rows);

    QLabel* lblResource;
    QComboBox* cmbResource;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

  private:
    void cmdOK_Click();
    void cmdCancel_Click();

    bool okPressed_ = false;
};

// Makes UsbOpen ask through this dialog, modal, in the language in force.
void InstallDlgResourceChooser();
