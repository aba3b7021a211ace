#pragma once
// The seam between the program's routines and everything that waits for a person,
// sleeps, pumps events, asks the clock or keeps settings. One implementation is
// installed at start-up: windowed, command-line, or the recording one used in tests.

#include <QDateTime>
#include <QList>
#include <QPair>
#include <QString>
#include <memory>

// Box styles and answers keep their classic numeric values: callers combine
// a button set with an icon by addition and compare answers by number.
enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
    vbDefaultButton3 = 512,
};

enum MsgBoxResult : int {
    vbOK = 1,
    vbCancel = 2,
    vbAbort = 3,
    vbRetry = 4,
    vbIgnore = 5,
    vbYes = 6,
    vbNo = 7,
};

// The buttons a style offers, in their on-screen order.
QList<int> msgBoxButtons(int style);
// The answer a box gives when the user just presses Enter.
int msgBoxDefaultAnswer(int style);

struct FileDialogRequest {
    QString title;
    QString filter;    // Qt form: "Bitmap (*.bmp);;All files (*)"
    QString directory; // start folder, may be empty
    QString fileName;  // proposed name, may be empty
};

using SettingList = QList<QPair<QString, QString>>;
class SettingsStore;

class Platform {
  public:
    virtual ~Platform() = default;

    virtual int msgBox(const QString& text, int style, const QString& title) = 0;
    virtual QString openFileName(const FileDialogRequest& request) = 0;
    virtual QString saveFileName(const FileDialogRequest& request) = 0;

    virtual void sleep(int ms) = 0;
    virtual void doEvents() = 0;
    virtual QDateTime now() = 0;

    // The per-user settings store of application "Selvane"; values are text.
    virtual SettingsStore& settings() = 0;
};

// Installs the implementation used from now on and returns the previous one.
std::unique_ptr<Platform> installPlatform(std::unique_ptr<Platform> platform);
// The installed implementation; a command-line one is installed on first use.
Platform& platform();

// The routine names the program's logic calls.
int MsgBox(const QString& text, int style = vbOKOnly, const QString& title = QString());
QString OpenFileDialog(const FileDialogRequest& request);
QString SaveFileDialog(const FileDialogRequest& request);
void Sleep(int ms);
void DoEvents();
QDateTime Now();
QString GetSetting(const QString& section, const QString& key, const QString& defaultValue = QString());
void SaveSetting(const QString& section, const QString& key, const QString& value);
void DeleteSetting(const QString& section, const QString& key);
SettingList GetAllSettings(const QString& section);

// Reads a numeric setting the classic way: a text that is not a number gives 0.
int GetSettingInt(const QString& section, const QString& key, int defaultValue);
double GetSettingNumber(const QString& section, const QString& key, double defaultValue);
