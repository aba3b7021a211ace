#pragma once
// The controller's short exchanges: a reply as text, and the level conversion
// aimed at the instrument.

#include <QString>

// AskCmd's reply cut at its line feed.
QString AskReply(const QString& query);
// Lets LevelToVolts ask the channel's scale and offset over the link.
void InstallLevelQuery();
