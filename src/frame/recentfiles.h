#pragma once
// The two recent-file lists: three keys of the settings store per list, newest
// first. Windows show them as menu entries; the logic here only reads and writes
// the store.

#include <QString>
#include <QStringList>

inline const QString RecentCtrlSection = QStringLiteral("Recent Ctrl_KV7200B");
inline const QString RecentSheetSection = QStringLiteral("Recent Sheet_KV7200B");
inline constexpr int RecentFileCount = 3;

// The paths a list shows: none when "RecentFile1" is empty, otherwise the value
// of every key of the section, in key order (blank keys included, so the entry
// positions match the keys).
QStringList LoadRecentList(const QString& section);

// Puts a path at the head of a list: a path already shown leaves the list as it is;
// otherwise the older two move down one place and the oldest falls off.
// Returns whether the list changed.
bool AddRecent(const QString& section, const QString& path);
