#pragma once
// The windowed implementation: real Qt message boxes and file dialogs, the
// user's settings store, the real clock.

#include "platform/platform.h"
#include "platform/settingsstore.h"

class WidgetsPlatform : public Platform {
  public:
    WidgetsPlatform() = default;

    int msgBox(const QString& text, int style, const QString& title) override;
    QString openFileName(const FileDialogRequest& request) override;
    QString saveFileName(const FileDialogRequest& request) override;
    void sleep(int ms) override;
    void doEvents() override;
    QDateTime now() override;
    SettingsStore& settings() override { return store_; }

  private:
    SettingsStore store_;
};
