#pragma once
// The virtual front panel against kv7200b-sim: the link's fixture connected over
// HiSLIP, the commands logged since the connect, and a panel whose screen loop
// is driven from inside its own yields.

#include "link_simlink.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>

class QAbstractButton;
class frmV_Panel;

// The mouse on a button, as a user's press and release reach it.
void PressButton(QAbstractButton* button);
void ReleaseButton(QAbstractButton* button);
void ClickButton(QAbstractButton* button);
// Turns the event loop for about ms milliseconds.
void WaitEvents(int ms);

class PanelSimTest : public SimLinkTest {
  protected:
    void connectSim(const QStringList& options = {});
    // What the simulator logged since the connect, once `count` commands are there (or 5 s passed).
    QStringList sentSinceConnect(int count) const;
    int loggedCount(const QString& command) const;
    QString hislipResource() const;

    template <typename T> T* control(QWidget& window, const QString& name)
    {
        T* found = window.findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }

    // Opens a panel and turns the event loop until it is gone. The screen loop
    // runs inside, so the test acts in `step`, called at every yield of the loop;
    // past the time limit the panel is closed and false returned.
    bool runPanel(const std::function<void(frmV_Panel&)>& step, int timeoutMs = 20000);

    std::unique_ptr<SimLink> link;
    int before = 0;
};
