#pragma once
// The key set of the instrument's front panel, shared by the virtual keyboard
// and the virtual panel: every control of the key table laid out in the
// instrument's groups (menu, run, vertical, horizontal, trigger) and the soft
// keys F1 to F5, each wired to send its command the way its kind asks.

#include "panel/keyrepeat.h"
#include "panel/keytable.h"

#include <QObject>

class QAbstractButton;
class QGroupBox;
class QTimer;
class QWidget;

class KeySetWidgets : public QObject {
  public:
    // The controls are made as children of host (their objectNames are the
    // key table's names); ButtonPressTimer too.
    KeySetWidgets(QWidget* host, KeySet set);

    QWidget* softKeys() const { return softKeys_; } // F1 to F5, one above the other
    QWidget* groups() const { return groups_; }     // all other keys, in their groups
    QTimer* ButtonPressTimer = nullptr;
    KeyRepeat& repeat() { return repeat_; }

    // Group titles in the language; the keys' own names are printed in English.
    void SetCaptions(int language);
    // VK_La is shown only for an instrument with logic inputs.
    void ShowLaKey(bool shown);
    // Lets go of a held key and stops the timer (the window closes).
    void stop();

  private:
    QAbstractButton* keyButton(const QString& name, const QString& label, QWidget* parent);
    QWidget* knob(const char* caption, const QString& dec, const QString& push, const QString& inc,
                  QWidget* parent);
    QGroupBox* group(const char* name, QWidget* parent);
    void buildMenuGroup(QWidget* parent);
    void buildRunGroup(QWidget* parent);
    void buildVerticalGroup(QWidget* parent);
    void buildHorizontalGroup(QWidget* parent);
    void buildTriggerGroup(QWidget* parent);
    void wire(QAbstractButton* button);

    KeySet set_;
    KeyRepeat repeat_;
    QWidget* softKeys_ = nullptr;
    QWidget* groups_ = nullptr;
};
