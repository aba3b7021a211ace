#pragma once
// The subcommands of selvane-cli. Each takes the command line without the
// subcommand's name (the program name stays first) and returns the exit status.

#include <QStringList>

// Connects with the program's own routines and prints the instrument's identity.
int RunIdnCommand(const QStringList& arguments);

// Reads one wave window snapshot and writes its picture (--out FILE.png|.bmp).
int RunWaveCommand(const QStringList& arguments);
// Reads one channel as a data table and writes its export text (--out FILE.txt).
int RunTableCommand(const QStringList& arguments);
// Reads every setting of the instrument and writes a control file (--out FILE.rmt).
int RunDownloadCommand(const QStringList& arguments);
// Sends a control file's settings to the instrument (--in FILE.rmt): 0 when sent,
// 3 when the file is refused, 2 on a usage or link error.
int RunUploadCommand(const QStringList& arguments);
// Changes one setting by its tree path as the value editor does and prints the
// node's new text: 0 when done, 3 when the node refuses, 2 on a usage or link error.
int RunSetCommand(const QStringList& arguments);
// Reads one channel's eighteen measurements, judges the limited ones and writes
// the export (--out FILE.txt). 0 when every limited item passes, 1 when one
// fails, 2 on a usage, link or file error.
int RunMeasureCommand(const QStringList& arguments);
// Reads the instrument's screen picture and writes it (--out FILE.png|.bmp).
int RunScreenCommand(const QStringList& arguments);
// Presses front-panel keys by control name, NAME@TICKS holding a repeat key.
int RunKeyCommand(const QStringList& arguments);
// Loads a waveform file as the memory wave window does and writes it as JSON,
// CSV or a picture; with --csv-dir converts many. 0 loaded, 3 refused, 2 usage.
int RunWfmCommand(const QStringList& arguments);
// Loads a record file into the first record slot and writes its fields (--json),
// one frame's picture (--frame K --picture FILE) or every frame (--frames-dir).
// 0 loaded, 3 refused, 2 on a usage error, 1 when an output can't be written.
int RunRcdCommand(const QStringList& arguments);
// Lists the VISA resources our layer finds with the *IDN? of each that answers;
// serial ports only with --serial. 0 when one answered, 1 when none, 2 usage.
int RunListCommand(const QStringList& arguments);
// Sends commands to one VISA resource and prints the replies, a block reply as
// its length (or its bytes to --out); without commands reads them from stdin,
// one a line. 0 when all went, 1 when one failed, 2 on a usage error.
int RunScpiCommand(const QStringList& arguments);
// Loads a data sheet file and writes its windows as JSON (--json) or saves it
// again (--resave). 0 loaded, 3 refused or unreadable, 2 usage, 1 write failed.
int RunSheetCommand(const QStringList& arguments);
