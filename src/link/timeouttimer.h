#pragma once
// The 100 ms tick that measures serial silence. The main window (or the
// command line) owns one TimeOutTimer for as long as the link may be used;
// Rs232Read waits on its ticks.

#include <QObject>
#include <QTimer>

// Adds one to ReplyTicks and to LinkTicks.
void TimeOutTimerTick();

class TimeOutTimer : public QObject {
  public:
    // Starts ticking at once, every 100 ms.
    explicit TimeOutTimer(QObject* parent = nullptr);

    void setEnabled(bool enabled);
    bool isEnabled() const { return timer_.isActive(); }

  private:
    QTimer timer_;
};
