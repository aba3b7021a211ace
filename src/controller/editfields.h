#pragma once
// Where the value editor finds a node's value in CtrlData.

#include "controller/editor.h"

// The field a node shows, or null for an action or a node without one.
QString* EditField(const EditTarget& target);
// The item's name within its trigger: the sub-item under an alternate window, else the item.
const QString& EditItem(const EditTarget& target);
// The wire word of the plain trigger type ("EDGE", "ALTERNATION", ...).
QString TriggerWireType();
// The wire word of an alternate window's type.
QString AltWireType(int window);

// cmdOK's steps for an item of the Trigger group.
EditResult ApplyTriggerEdit(const EditTarget& target, const QString& value);
// A time number text (seconds) checked and clamped as the editor takes it; false
// (with "Enter number only!") when it is not a number.
bool EditTimeNumber(const QString& value, double& seconds);
