#pragma once
// The words the control tree shows: value words and node names, looked up by their
// English keyword. Values are held in the language that was in force when they were
// set, so the way back accepts either language.

#include "text/captions.h"
#include "text/language.h"

// The display word of an English value keyword ("EDGE" -> "边沿触发" in Chinese).
// A word of no list ("CH1CH2", "1.00V") is its own display word.
QString ValueWord(const QString& english, int language = Language, WordSense sense = WordSense::Plain);
// The English keyword of a display word in either language; an unknown text comes back as it is.
QString ValueKeyword(const QString& display);
// True when a display word, in either language, stands for the English keyword.
bool IsValueWord(const QString& display, const QString& english);

// The caption of a tree node named by its English caption; value words such as
// "WindowA" and "Alt Channel" that serve as captions are found too.
QString NodeCaption(const QString& english, int language = Language, WordSense sense = WordSense::Plain);
