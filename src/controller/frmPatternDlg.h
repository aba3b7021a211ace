#pragma once
// The pattern trigger's code dialog: one of H, L, rising, falling or don't care
// for each of CH1 to CH4 and the external input, with at most one edge.

#include "controller/pattern.h"

#include <QDialog>
#include <array>

class QRadioButton;

class PatternDlg : public QDialog {
    Q_OBJECT
  public:
    explicit PatternDlg(QWidget* parent = nullptr);

    void PresetPattern(const PatternCodes& codes, bool isDiv5);
    void GetPattern(PatternCodes& codes, bool& isDiv5) const;
    // OK: the dialog's pattern into CtrlData and to the instrument, then closes.
    void cmdOK_Click();

  Q_SIGNALS:
    // The Code node's new summary ("XX5XXUp").
    void codeChanged(const QString& summary);

  private:
    void edgeChosen(int input);
    // [code][input]: the radio of each code (X, H, L, Up, Dn) at each input.
    std::array<std::array<QRadioButton*, 5>, 5> radios{};
    QRadioButton* optExt = nullptr;
    QRadioButton* optExt5 = nullptr;
};
