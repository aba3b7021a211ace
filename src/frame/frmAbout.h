#pragma once
// The about box: fixed product texts; a click on the icon tells the version.

#include <QDialog>

class QLabel;
class QPushButton;

class frmAbout : public QDialog {
    Q_OBJECT
  public:
    explicit frmAbout(QWidget* parent = nullptr);

    // Sets every caption for the language; the product texts are the same in both.
    void SetCaptions(int language);
    void picIcon_Click();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLabel* picIcon;
    QLabel* lblTitle;
    QLabel* lblVersion;
    QLabel* lblDescription;
    QPushButton* cmdOK;
};
