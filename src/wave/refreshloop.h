#pragma once
// The refresh of a reading window (wave, measure, data): one reading per press,
// or readings at an interval until the button is pressed again. Never two
// readings at once: a press during the interval loop only ends it, after the
// reading under way.

#include <QObject>
#include <functional>

class QKeyEvent;
class QTimer;

// F5 with no Shift, Ctrl or Alt held: the refresh key.
bool IsRefreshKey(const QKeyEvent* event);

class RefreshLoop : public QObject {
    Q_OBJECT
  public:
    struct Hooks {
        std::function<void()> load;                  // one reading (the window's LoadData)
        std::function<bool&()> autoRefreshing;       // the record's interval-refresh word
        std::function<void(bool stopPair)> showStop; // the button's images
        std::function<void(bool)> enableButton;
        std::function<void()> started; // a refresh begins (the window remembers itself)
    };
    // timer is the window's interval clock (its Timer2); the loop owns its ticks.
    RefreshLoop(QTimer* timer, Hooks hooks, QObject* parent);

    // A press of the refresh button (or F5).
    void press();
    // The window goes: an interval refresh of it stops.
    void stop();
    // A single reading is under way.
    bool busy() const { return busy_; }

  private:
    void runSingle();
    void runInterval();
    bool pause();
    void end();

    QTimer* timer_;
    Hooks hooks_;
    bool busy_ = false;
    bool stopRequest_ = false;
};
