#include "platform/settingsstore.h"

SettingsStore::SettingsStore(const QString& iniPath)
{
    if (iniPath.isEmpty())
        settings_ =
            std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, "Selvane", "Selvane");
    else
        settings_ = std::make_unique<QSettings>(iniPath, QSettings::IniFormat);
}

QString SettingsStore::get(const QString& section, const QString& key, const QString& defaultValue) const
{
    const QVariant value = settings_->value(section + '/' + key);
    return value.isValid() ? value.toString() : defaultValue;
}

void SettingsStore::save(const QString& section, const QString& key, const QString& value)
{
    settings_->setValue(section + '/' + key, value);
    settings_->sync();
}

void SettingsStore::remove(const QString& section, const QString& key)
{
    settings_->remove(section + '/' + key);
    settings_->sync();
}

SettingList SettingsStore::all(const QString& section) const
{
    SettingList list;
    settings_->beginGroup(section);
    const QStringList keys = settings_->childKeys();
    for (const QString& key : keys)
        list.append({key, settings_->value(key).toString()});
    settings_->endGroup();
    return list;
}

QString SettingsStore::fileName() const
{
    return settings_->fileName();
}
