#pragma once
// Text exports of the measure and data windows: the save dialog's texts, and
// writing a text file that leaves the old one whole when it fails.

#include <QString>

QString ExportTextFilter(int language);
// Writes text as UTF-8 to path; the failure's text, or empty when written.
QString WriteExportFile(const QString& path, const QString& text);
// Writes text to path; a failure shows its text in a critical box. true when written.
bool SaveExportFile(const QString& path, const QString& text);
// Asks for a name and writes the text there. A cancelled dialog ends the
// command; a failure shows its text in a critical box. true when written.
bool ExportTextFile(const QString& text, int language);
