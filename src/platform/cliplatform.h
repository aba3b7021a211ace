#pragma once
// The command-line implementation: boxes go to stderr and take their default
// answer, file dialogs hand out paths given on the command line in order.

#include "platform/platform.h"
#include "platform/settingsstore.h"

#include <QStringList>

class CliPlatform : public Platform {
  public:
    explicit CliPlatform(const QString& settingsPath = QString());

    // Paths the next open/save dialogs return, first given first used.
    void queueOpenPath(const QString& path) { openPaths_.append(path); }
    void queueSavePath(const QString& path) { savePaths_.append(path); }

    int msgBox(const QString& text, int style, const QString& title) override;
    QString openFileName(const FileDialogRequest& request) override;
    QString saveFileName(const FileDialogRequest& request) override;
    void sleep(int ms) override;
    void doEvents() override;
    QDateTime now() override;
    SettingsStore& settings() override { return store_; }

  private:
    SettingsStore store_;
    QStringList openPaths_;
    QStringList savePaths_;
};
