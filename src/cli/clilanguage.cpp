#include "cli/clilanguage.h"

#include "text/language.h"
#include "text/messages.h"

#include <cstdio>

void AddLanguageOption(QCommandLineParser& parser)
{
    parser.addOption({"language", "english or chinese (default: the stored setting).", "name"});
}

bool TakeLanguageOption(const QCommandLineParser& parser, int& language)
{
    language = -1;
    if (!parser.isSet("language")) return true;
    const QString name = parser.value("language").toLower();
    if (name == QLatin1String("english")) language = LanguageEnglish;
    if (name == QLatin1String("chinese")) language = LanguageChinese;
    if (language >= 0) return true;
    std::fputs("--language takes english or chinese\n", stderr);
    return false;
}

void ApplyLanguage(int language)
{
    if (language < 0) return;
    Language = language;
    LoadMessages();
}
