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
    QString getSetting(const QString& section, const QString& key, const QString& defaultValue) override;
    void saveSetting(const QString& section, const QString& key, const QString& value) override;
    void deleteSetting(const QString& section, const QString& key) override;
    SettingList allSettings(const QString& section) override;

  private:
    SettingsStore store_;
};
