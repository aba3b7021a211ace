#include "mainwindowfixture.h"

#include <QDockWidget>

QWidget* MainWindowTest::pane(const char* key) const
{
    return window->findChild<QDockWidget*>(QString::fromLatin1(key));
}

int MainWindowTest::storedSettingCount() const
{
    int count = 0;
    for (const char* section :
         {"General_KV7200B", "IO Settings_KV7200B", "Refresh_KV7200B", "Settings_KV7200B",
          "Selvane_Language_KV7200B", "Recent Ctrl_KV7200B", "Recent Sheet_KV7200B"})
        count += static_cast<int>(GetAllSettings(section).size());
    return count;
}
