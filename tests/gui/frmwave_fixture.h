#pragma once
// Wave windows under test: a fresh program state, a recording platform and an
// MDI area to put windows in; optionally the simulator on a socket link.

#include "guitest.h"
#include "platform/testplatform.h"
#include "wave/frmWave.h"

#include <QMdiArea>
#include <gtest/gtest.h>
#include <memory>

#include "simprocess.h"

class WaveWindowTest : public ::testing::Test {
  protected:
    WaveWindowTest();
    ~WaveWindowTest() override;

    // Creates the window of a slot, titled, and lets its first Timer1 run.
    frmWave& open(int slot = 0, const QString& title = QStringLiteral("Wave0"));
    // Waits, the event loop turning, until done() or the time is up.
    static bool waitFor(const std::function<bool()>& done, int timeoutMs = 5000);
    QStringList boxTexts() const;
    // Gives the window this inner size through its MDI child window.
    void resizeInner(QSize inner);
    // Where the picture's pane starts: right of the controls' column.
    int paneLeft() const;

    template <typename T> T* control(const char* name) const
    {
        return Named<T>(window, QString::fromLatin1(name));
    }

    ScopedTestPlatform platform;
    QMdiArea area;
    frmWave* window = nullptr;
};

// The same with a simulator connected over its socket.
class SimWaveWindowTest : public WaveWindowTest {
  protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void SetUp() override;
    void TearDown() override;

    static inline std::unique_ptr<SimProcess> sim;
};
