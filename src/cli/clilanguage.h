#pragma once
// --language english|chinese: the language of a subcommand's texts (result
// words, messages), in place of the one in the settings store.

#include <QCommandLineParser>

void AddLanguageOption(QCommandLineParser& parser);
// false (with a message on stderr) for a value other than english or chinese.
bool TakeLanguageOption(const QCommandLineParser& parser, int& language);
// Puts the language in force; call after the link is open, which loads the stored one.
void ApplyLanguage(int language);
