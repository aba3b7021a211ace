#pragma once
// The control file: one CtrlData record as quoted items, one a line, CR LF,
// UTF-8. The first line names the maker and model; a file without it is refused.

#include <QString>

// The first item of every control file.
QString CtrlFileHeader();

// Reads path into CtrlData. A failed open shows the system's text, a wrong header
// "File Format is Invaild !" (both leave CtrlData unchanged); a short file keeps
// what was read. True when the whole record was read.
bool ReadCtrlFile(const QString& path);
// Writes CtrlData to path through a save that leaves the old file whole on failure;
// the system's text is shown when it fails.
bool WriteCtrlFile(const QString& path);
