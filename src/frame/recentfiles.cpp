#include "frame/recentfiles.h"

#include "platform/platform.h"

namespace {

QString recentKey(int number)
{
    return QStringLiteral("RecentFile%1").arg(number);
}

// Moves one key's value to the next key down, writing the empty text when unset.
void shiftDown(const QString& section, int from)
{
    SaveSetting(section, recentKey(from + 1), GetSetting(section, recentKey(from), QString()));
}

} // namespace

QStringList LoadRecentList(const QString& section)
{
    QStringList paths;
    if (GetSetting(section, recentKey(1), QString()).isEmpty()) return paths;
    for (const auto& [key, value] : GetAllSettings(section))
        if (paths.size() < RecentFileCount) paths.append(value);
    return paths;
}

bool AddRecent(const QString& section, const QString& path)
{
    if (LoadRecentList(section).contains(path)) return false;
    for (int from = RecentFileCount - 1; from >= 1; --from)
        shiftDown(section, from);
    SaveSetting(section, recentKey(1), path);
    return true;
}
