#pragma once
// The start-up window: product, version and maker while the main window loads.

#include <QWidget>

class QLabel;

class frmSplash : public QWidget {
    Q_OBJECT
  public:
    explicit frmSplash(QWidget* parent = nullptr);

    // Centres the window on its screen, shows it and paints it at once.
    void ShowNow();

  private:
    QLabel* lblProductName;
    QLabel* lblVersion;
    QLabel* lblCompany;
};
