// The reading window: it refuses to close while its operation runs, runs the
// operation it was given once from Timer1, and ends the caller's wait.
#include "acquire/frmPrgress.h"
#include "acquire/operation.h"
#include "link/linkstate.h"
#include "settings/softwaresettings.h"
#include "support/fakevisa.h"

#include <QApplication>
#include <QProgressBar>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

constexpr int AnOperation = 22;

class ProgressWindow : public FakeVisaTest {
  protected:
    ProgressWindow() { connectOverVisa(); }
    ~ProgressWindow() override { SetOperationRoutine(AnOperation, nullptr); }
};

TEST_F(ProgressWindow, RefusesToCloseWhileRunning)
{
    frmPrgress window({AnOperation});
    window.show();
    ASSERT_TRUE(OperationRunning);
    EXPECT_TRUE(LinkBusy);
    EXPECT_EQ(window.findChild<QProgressBar*>("ProgressBar1")->value(), 5);
    EXPECT_TRUE(window.findChild<QTimer*>("Timer1")->isActive());
    EXPECT_FALSE(window.findChild<QTimer*>("Timer2")->isActive());

    window.close();
    window.reject();
    EXPECT_TRUE(window.isVisible());

    OperationRunning = false;
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ProgressWindow, RunsTheOperationOnceAndEndsTheWait)
{
    int runs = 0;
    Operation given;
    bool closeRefused = false;
    SetOperationRoutine(AnOperation, [&](const Operation& operation) {
        ++runs;
        given = operation;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* window = qobject_cast<frmPrgress*>(widget); window && window->isVisible())
                closeRefused = !window->close();
        return true;
    });
    SaveSetting("Settings_KV7200B", "ProgressLeft", "-3000");

    EXPECT_TRUE(frmPrgress::RunReading({AnOperation, 5}, "Data Uploading..."));

    EXPECT_EQ(runs, 1);
    EXPECT_EQ(given.slot, 5) << "the window hands the routine its target";
    EXPECT_TRUE(closeRefused);
    EXPECT_TRUE(OperationDone);
    EXPECT_FALSE(OperationRunning);
    EXPECT_FALSE(LinkBusy);
    EXPECT_EQ(visa->commands().front(), ":TRIGGER:STATUS?");
    EXPECT_TRUE(platform->sleeps.contains(ReadingEndPauseMs));
    EXPECT_EQ(GetSetting("Settings_KV7200B", "ProgressLeft"), "400") << "an off-screen corner is put back";
}

TEST_F(ProgressWindow, DoesNothingWithoutLinkOrWhileRunning)
{
    SetOperationRoutine(AnOperation, [](const Operation&) {
        ADD_FAILURE() << "no operation may run";
        return true;
    });
    Connected = false;
    EXPECT_FALSE(frmPrgress::RunReading({AnOperation}, QString()));
    Connected = true;
    OperationRunning = true;
    EXPECT_FALSE(frmPrgress::RunReading({AnOperation}, QString()));
}

} // namespace
