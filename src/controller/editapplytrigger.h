#pragma once
// The value editor's OK for an item of the Trigger group.

#include "controller/editapply.h"

// cmdOK's steps for an item of the Trigger group.
EditResult ApplyTriggerEdit(const EditTarget& target, const QString& value);
