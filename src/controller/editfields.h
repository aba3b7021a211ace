#pragma once
// Where the value editor finds a node's value in CtrlData.

#include "controller/editpath.h"

#include <QString>

// The field a node shows, or null for an action or a node without one.
QString* EditField(const EditTarget& target);
// The item's name within its trigger: the sub-item under an alternate window, else the item.
const QString& EditItem(const EditTarget& target);
// The wire word of the plain trigger type ("EDGE", "ALTERNATION", ...).
QString TriggerWireType();
// The wire word of an alternate window's type.
QString AltWireType(int window);
