#pragma once
// The choice dialog behind File > New and File > Open: a frame of option
// buttons, OK and Cancel. OK sets DocChoice to the first option on and DocChosen.

#include "text/captions.h"

#include <QDialog>
#include <vector>

class QGroupBox;
class QPushButton;
class QRadioButton;

class frmDocChoice : public QDialog {
    Q_OBJECT
  public:
    frmDocChoice(const QString& name, CaptionList captions, int options, QWidget* parent);

    void SetCaptions(int language);
    void cmdOK_Click();
    void cmdCancel_Click();

  private:
    CaptionList captionList;
    QGroupBox* fraFileType = nullptr;
    std::vector<QRadioButton*> NewOption;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};
