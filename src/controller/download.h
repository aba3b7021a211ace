#pragma once
// Download: every setting of the instrument into CtrlData, one query at a time.

#include <QObject>

// Tells the windows that CtrlData was refilled and the tree must be rebuilt.
class CtrlEvents : public QObject {
    Q_OBJECT
  Q_SIGNALS:
    void recordChanged();
};
CtrlEvents& CtrlNotifier();

// The transfer itself (operation 23's work): the queries in order, ticking the
// progress bar, then recordChanged. An empty reply (a time-out or a lost link)
// takes each conversion's last row; the transfer always runs to its end.
bool DownloadTransfer();
// The fields of the trigger type in TrigMethod again from the instrument.
void GetTriggerMethod();
// The type and the fields of alternate window channel (0 A, 1 B) again.
void GetTriggerAltTrigType(int channel);
// The delay again, as TimeText5 of ":TIMEBASE:OFFSET?".
void GetTimeBaseParameter();
// Registers DownloadTransfer as the reading frame's download operation.
void InstallDownloadOperation();
// The steps after a download the user asked for: the first two inverts and the
// spare before the time format OFF, and the record marked unsaved.
void AfterDownload();
