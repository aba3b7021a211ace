#pragma once
// The data sheet file (.kvs): every window of the open sheet with its record,
// written and read strictly in one order.

#include "text/language.h"

#include <QByteArray>
#include <QString>

enum class SheetLoadResult { Loaded, Refused, Unreadable };

// The first line a file of this version must hold.
QString SheetSignature();
// The file's content for the sheet as it stands; pauses a replaying record first.
QByteArray SheetFileContent();
// Reads a file's content into the records and the sheet's names; a wrong
// signature changes nothing and answers Refused.
SheetLoadResult ReadSheetContent(const QByteArray& content);

// Writes the sheet to path, clears the changed flag and takes path as the
// sheet's file. False, after the system's text in a box, when it can't be written.
bool SaveSheet(const QString& path);
// Reads path's content and checks its signature; a failure says so in a box
// and changes nothing. The content is then read by ReadSheetContent.
SheetLoadResult ReadSheetFile(const QString& path, QByteArray& content);
// Reads path: on a good file the sheet is replaced and its file is path. A bad
// signature and an unreadable file say so in a box and leave the sheet as it was.
SheetLoadResult LoadSheet(const QString& path);

QString SheetFormatInvalidText(int language = Language);
// The file dialogs' texts: "Open", "Save", "Save As" and the filter in Qt's form.
QString SheetOpenTitle(int language = Language);
QString SheetSaveTitle(bool saveAs, int language = Language);
QString SheetFileFilter(int language = Language);
