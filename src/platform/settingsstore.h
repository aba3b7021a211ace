#pragma once
// The per-user settings store: an INI file of application "Selvane" with one
// group a section. Every value is kept as text.

#include "platform/platform.h"

#include <QSettings>
#include <memory>

class SettingsStore {
  public:
    // With no path: the user's own store; with a path: that INI file (tests, portable use).
    explicit SettingsStore(const QString& iniPath = QString());

    QString get(const QString& section, const QString& key, const QString& defaultValue) const;
    void save(const QString& section, const QString& key, const QString& value);
    void remove(const QString& section, const QString& key);
    SettingList all(const QString& section) const;
    QString fileName() const;

  private:
    std::unique_ptr<QSettings> settings_;
};
