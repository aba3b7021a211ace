#pragma once
// A loaded main window on the recording platform, with a scripted instrument
// (no resources unless a test lists some) in place of the VISA library.

#include "frame/frmMain.h"
#include "guitest.h"
#include "platform/testplatform.h"
#include "state/programstate.h"
#include "support/fakevisa.h"

#include <QAction>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QThread>
#include <gtest/gtest.h>
#include <memory>

class MainWindowTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ResetProgramState();
        instrument->replies["*IDN?"] = FakeVisa::SupportedIdentity;
    }
    void TearDown() override
    {
        window.reset();
        ResetProgramState();
    }

    // Creates, loads and shows the window, and lets the one-shot start timer run.
    frmMain& load()
    {
        window = std::make_unique<frmMain>();
        window->Form_Load();
        window->show();
        QElapsedTimer waited;
        waited.start();
        while (!pane("DataSheet")->isVisible() && waited.elapsed() < 5000) {
            QCoreApplication::processEvents();
            QThread::msleep(1);
        }
        return *window;
    }

    template <typename T = QAction> T* find(const char* name) const
    {
        return Named<T>(window.get(), QString::fromLatin1(name));
    }
    QWidget* pane(const char* key) const;
    // The settings written so far, all sections of the frame.
    int storedSettingCount() const;

    ScopedTestPlatform test;
    ScopedFakeVisa instrument;
    std::unique_ptr<frmMain> window;
};
