#pragma once
// The language of the interface, chosen at run time and kept in the settings store.

#include <QString>

enum : int { LanguageChinese = 0, LanguageEnglish = 1 };

// 0 Chinese, 1 English. Read before any window is made.
extern int Language;

// Any value but 0 speaks English, so a stray stored number never leaves a window blank.
inline bool IsChinese(int language)
{
    return language == LanguageChinese;
}

void LoadLanguageSetting();
void SaveLanguageSetting();

// The help file of a language, by name and as the path beside the program.
QString HelpFileName(int language);
QString HelpFilePath(int language);
// Takes the help files from folder instead; empty goes back to the program's own.
void SetHelpFolder(const QString& folder);

// Back to English with the catalogue loaded, as at a first start.
void ResetLanguageState();
