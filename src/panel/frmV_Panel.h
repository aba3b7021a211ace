#pragma once
// The virtual panel: the instrument's own screen, fetched again and again as a
// bitmap, beside the key set of the virtual keyboard; run and stop of the
// screen, export, print and preview of it.

#include "wave/frmWavePrint.h"

#include <QByteArray>
#include <QWidget>

class KeySetWidgets;
class QFrame;
class QPushButton;
class QTimer;
class ScreenPictureBox;

class frmV_Panel : public QWidget, public PrintablePicture {
  public:
    explicit frmV_Panel(QWidget* parent = nullptr);
    ~frmV_Panel() override;

    KeySetWidgets& keys() { return *keys_; }
    void SetCaptions(int language);

    // Kept for callers of the classic form; no work of their own.
    int InitResource() { return 0; }
    int FreeResource() { return 0; }

    // One pass of the screen loop: fetch a screen and show it if still running.
    // true when a picture was shown.
    bool DrawBulkWave();
    bool screenLoopRunning() const { return loopRunning_; }

    QFrame* PanelWavePic = nullptr;
    ScreenPictureBox* AddPic = nullptr;
    QPushButton* cmdRun = nullptr;
    QPushButton* cmdStop = nullptr;
    QPushButton* cmdExport = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdPreview = nullptr;
    QTimer* tDrawBmp = nullptr;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    QWidget* buildScreenSide();
    void tDrawBmp_Timer();
    void runScreenLoop();
    void closeIfGone();
    void showRunState();
    void cmdRun_Click();
    void cmdStop_Click();
    void cmdExport_Click();

    // PrintablePicture: the screen as it came, printed as it is.
    double pictureZoom() const override { return 1; }
    void drawForPrint(double, QSize) override {}
    QImage printImage() const override;
    QString printTitle() const override { return windowTitle(); }
    QString printLegend() const override;
    void restoreAfterPrint(double) override {}

    KeySetWidgets* keys_;
    QByteArray screen_;
    bool loopRunning_ = false;
    bool linkSeen_ = false; // the link was up while the window was
};
