#pragma once
// The recording implementation for tests: every box, dialog and sleep is kept
// so a test can assert on the exact text, title and style; answers come from a
// script; settings live in a temporary INI file; the clock is virtual and moves
// only by sleeps and by advance().

#include "platform/platform.h"
#include "platform/settingsstore.h"

#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>

struct RecordedBox {
    QString text;
    int style = 0;
    QString title;
};

class TestPlatform : public Platform {
  public:
    TestPlatform();

    QList<RecordedBox> boxes;
    QList<FileDialogRequest> openRequests;
    QList<FileDialogRequest> saveRequests;
    QList<int> sleeps;
    int doEventsCount = 0;

    // Scripted answers; a box with no scripted answer takes its default button.
    QList<int> boxAnswers;
    QStringList openPaths;
    QStringList savePaths;
    // When set, sleeps really wait (integration tests talking to a live peer).
    bool realSleep = false;
    // Runs inside every DoEvents, after the event loop's turn (lets a test act "meanwhile").
    std::function<void()> onDoEvents;

    void advance(qint64 ms) { clock_ = clock_.addMSecs(ms); }
    void clearRecords();
    QString settingsFile() const { return store_.fileName(); }

    int msgBox(const QString& text, int style, const QString& title) override;
    QString openFileName(const FileDialogRequest& request) override;
    QString saveFileName(const FileDialogRequest& request) override;
    void sleep(int ms) override;
    void doEvents() override;
    QDateTime now() override { return clock_; }
    SettingsStore& settings() override { return store_; }

  private:
    QTemporaryDir dir_;
    SettingsStore store_;
    QDateTime clock_;
};

// Installs a fresh TestPlatform for the lifetime of the object and puts the
// previous implementation back afterwards.
class ScopedTestPlatform {
  public:
    ScopedTestPlatform();
    ~ScopedTestPlatform();
    TestPlatform* operator->() const { return current_; }
    TestPlatform& operator*() const { return *current_; }

  private:
    TestPlatform* current_;
    std::unique_ptr<Platform> previous_;
};
