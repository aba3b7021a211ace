#pragma once
// The held key of the virtual keyboard and panel: a repeat key sends its
// command with a count of 0 on press and again on every tick of
// ButtonPressTimer while held, the count growing with the time held.

#include <QString>
#include <functional>

inline constexpr int ButtonPressInterval = 200; // ms between ticks of a held key
inline constexpr int HeldTicksLimit = 60000;

// The count a tick sends after the key was held this many ticks.
int RepeatStep(int heldTicks);

class KeyRepeat {
  public:
    // The timer is the window's ButtonPressTimer (or a test's stand-in); the
    // repeat only switches it on and off and is told its ticks.
    explicit KeyRepeat(std::function<void(bool)> setTimerEnabled);

    QString HeldCommand;
    int HeldTicks = 0;
    bool Sending = false; // a tick's command is on its way

    void press(const QString& command);
    void tick();
    void release();

  private:
    std::function<void(bool)> setTimerEnabled_;
};
