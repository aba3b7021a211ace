#pragma once
// The control file commands without their window: the unsaved-changes question,
// New, the open and save dialogs, and the controller's own short texts.

#include <QString>
#include <functional>

// One text in the language in force.
QString CtrlText(const char16_t* english, const char16_t* chinese);
// The rule messages by code: 1 trigger, 2 horizontal, 3 firmware, others "Can't be used.".
QString RuleMessage(int code);

// The Yes/No/Cancel question when CtrlDirty; Yes runs save first. false: Cancel.
bool CtrlChangesHandled(const std::function<void()>& save);
// CtrlData to the New defaults, no file, nothing unsaved.
void NewCtrlRecordInUse();
// The path the open dialog gives; empty when cancelled.
QString AskOpenCtrlPath();
// Saves CtrlData: under CtrlFileName, or asks a name first (always for Save As).
// Returns the path written, empty when cancelled or failed.
QString SaveCtrlRecord(bool saveAs);
