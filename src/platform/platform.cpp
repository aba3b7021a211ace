#include "platform/platform.h"

#include "platform/cliplatform.h"
#include "platform/settingsstore.h"

namespace {
std::unique_ptr<Platform>& installed()
{
    static std::unique_ptr<Platform> instance;
    return instance;
}
} // namespace

QList<int> msgBoxButtons(int style)
{
    switch (style & 7) {
    case vbOKCancel: return {vbOK, vbCancel};
    case vbAbortRetryIgnore: return {vbAbort, vbRetry, vbIgnore};
    case vbYesNoCancel: return {vbYes, vbNo, vbCancel};
    case vbYesNo: return {vbYes, vbNo};
    case vbRetryCancel: return {vbRetry, vbCancel};
    default: return {vbOK};
    }
}

int msgBoxDefaultAnswer(int style)
{
    const QList<int> buttons = msgBoxButtons(style);
    int index = 0;
    if (style & vbDefaultButton3)
        index = 2;
    else if (style & vbDefaultButton2)
        index = 1;
    return buttons.value(index, buttons.first());
}

std::unique_ptr<Platform> installPlatform(std::unique_ptr<Platform> platform)
{
    std::unique_ptr<Platform> previous = std::move(installed());
    installed() = std::move(platform);
    return previous;
}

Platform& platform()
{
    if (!installed()) installed() = std::make_unique<CliPlatform>();
    return *installed();
}

int MsgBox(const QString& text, int style, const QString& title)
{
    return platform().msgBox(text, style, title);
}
QString OpenFileDialog(const FileDialogRequest& request)
{
    return platform().openFileName(request);
}
QString SaveFileDialog(const FileDialogRequest& request)
{
    return platform().saveFileName(request);
}
void Sleep(int ms)
{
    platform().sleep(ms);
}
void DoEvents()
{
    platform().doEvents();
}
QDateTime Now()
{
    return platform().now();
}

QString GetSetting(const QString& section, const QString& key, const QString& defaultValue)
{
    return platform().settings().get(section, key, defaultValue);
}

void SaveSetting(const QString& section, const QString& key, const QString& value)
{
    platform().settings().save(section, key, value);
}

void DeleteSetting(const QString& section, const QString& key)
{
    platform().settings().remove(section, key);
}
SettingList GetAllSettings(const QString& section)
{
    return platform().settings().all(section);
}

double GetSettingNumber(const QString& section, const QString& key, double defaultValue)
{
    bool ok = false;
    const double value = GetSetting(section, key, QString::number(defaultValue)).trimmed().toDouble(&ok);
    return ok ? value : 0.0;
}

int GetSettingInt(const QString& section, const QString& key, int defaultValue)
{
    const double value = GetSettingNumber(section, key, defaultValue);
    if (value > 2147483647.0 || value < -2147483648.0) return 0;
    return static_cast<int>(value < 0 ? value - 0.5 : value + 0.5);
}
