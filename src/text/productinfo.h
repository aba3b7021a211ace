#pragma once
// The fixed texts the program shows about itself: splash, about box and the
// settings store's application title.

#include <QString>

inline const QString ProgramTitle = QStringLiteral("Selvane");
inline const QString CompanyName = QStringLiteral("Korva Technologies,Inc.");
inline const QString ProductModel = QStringLiteral("KV7200B");
inline const QString ProgramVersion = QStringLiteral("00.01.05.00.00");
