#pragma once
// The connection lamp of the main window (picLED_ON / picLED_OFF) and the loss
// of the link. The link only says what happened; windows that show it listen to
// LinkNotifier()'s signals (many may, and each is let go when it is destroyed).

#include <QObject>

class LinkEvents : public QObject {
    Q_OBJECT
  Q_SIGNALS:
    // The lamp was turned on or off.
    void lampChanged(bool on);
    // The link went down while connected: every later send and read is a silent no-op.
    void linkLost();
};
LinkEvents& LinkNotifier();

// Whether the lamp was last turned on.
extern bool LinkLampOn;

void SetLinkLamp(bool on);

// The link is gone: the lamp goes off and Connected is cleared, so every later
// send and read is a silent no-op. The session stays open.
void LinkLost();
