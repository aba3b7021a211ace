#include "text/language.h"

#include "platform/platform.h"
#include "text/messages.h"
#include "text/valuetext.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

int Language = LanguageEnglish;

namespace {
const QString LanguageSection = QStringLiteral("Selvane_Language_KV7200B");
const QString LanguageKey = QStringLiteral("Language");
QString helpFolder;
} // namespace

void LoadLanguageSetting()
{
    Language = GetSettingInt(LanguageSection, LanguageKey, LanguageEnglish);
}

void SaveLanguageSetting()
{
    SaveSetting(LanguageSection, LanguageKey, QString::number(Language));
}

// The help pages ship as HTML under the names the compiled help files had.
QString HelpFileName(int language)
{
    return IsChinese(language) ? QStringLiteral("KV7200help_Chinese.html")
                               : QStringLiteral("KV7200help.html");
}

// Beside the program in the build tree; under the data folder when installed.
QString HelpFilePath(int language)
{
    if (!helpFolder.isEmpty()) return QDir(helpFolder).filePath(HelpFileName(language));
    const QDir programDir(QCoreApplication::applicationDirPath());
    const QString beside = programDir.filePath(HelpFileName(language));
    const QString installed = QDir::cleanPath(
        programDir.filePath(QStringLiteral(SELVANE_HELP_FROM_BIN "/") + HelpFileName(language)));
    return QFile::exists(beside) || !QFile::exists(installed) ? beside : installed;
}

void SetHelpFolder(const QString& folder)
{
    helpFolder = folder;
}

void ResetLanguageState()
{
    Language = LanguageEnglish;
    helpFolder.clear();
    LoadMessages();
    ValueValid = false;
    SetLevelQuery(nullptr);
}
