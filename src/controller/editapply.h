#pragma once
// The value editor's OK: the identity check, then the item's store, command and
// read-back, and the texts of numbers as the editor takes and sends them.

#include "controller/editpath.h"

#include <QString>

enum class EditOutcome {
    Stored,   // the value went to CtrlData, the instrument and the tree
    Stays,    // not a number: the message was shown, the dialog stays
    LinkGone, // "*IDN?" went unanswered: the dialog closes, nothing stored
};
struct EditResult {
    EditOutcome outcome = EditOutcome::Stored;
    bool relayout = false;      // the tree's layout follows the new value: rebuild it
    bool selectAcquire = false; // select the "Acquire" group after the rebuild
};
// cmdOK: the identity check, then the item's store, command and read-back.
EditResult ApplyEdit(const EditTarget& target, const QString& value);

// A time number text (seconds) checked and clamped as the editor takes it; false
// (with "Enter number only!") when it is not a number.
bool EditTimeNumber(const QString& value, double& seconds);
// A time text as the instrument takes it: upper case, "NS", "US", "MS" into
// "e-9", "e-6", "e-3", else the last character into "e0" ("2.000S" "2.000e0").
QString TimeWireExponent(const QString& text);
// True when the text reads whole as a number (blanks around allowed).
bool IsNumberText(const QString& text);
