#pragma once
// The small modal window every long exchange with the instrument runs in. It
// shows the bar and holds the operation it was given; the frame's steps are
// those of operation.h: Timer1 runs the operation once, Timer2 moves the bar.
// The window can't be closed while the operation runs.

#include "acquire/operation.h"

#include <QDialog>

class QProgressBar;
class QTimer;

class frmPrgress : public QDialog, public ProgressView {
    Q_OBJECT
  public:
    explicit frmPrgress(const Operation& operation, QWidget* parent = nullptr);
    ~frmPrgress() override;

    // The caller's side of a reading: unless the link is down or an operation
    // runs, shows the window with caption, runs the operation in it and waits,
    // the event loop turning, until OperationDone. false when nothing ran.
    static bool RunReading(const Operation& operation, const QString& caption, QWidget* parent = nullptr);

    void Timer1_Timer();
    void Timer2_Timer();

    void setTimer2Enabled(bool enabled) override;
    void setBarValue(double value) override;
    double barValue() const override;
    double barMaximum() const override;
    void refresh() override;

    // Escape closes a dialog; not this one while it runs.
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void placeFromSettings();
    void savePlacement();

    const Operation operation_;
    QPoint placedAt_;    // where the kept corner put the window, in pixels
    QPoint placedTwips_; // the same corner in twips, saved back while the window stays there
    QProgressBar* ProgressBar1;
    QTimer* Timer1;
    QTimer* Timer2;
};
