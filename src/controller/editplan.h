#pragma once
// What the value editor's dialog offers for a node, and the nodes that act at
// once instead of opening one.

#include "controller/editpath.h"

#include <QString>
#include <QStringList>
#include <functional>

enum class EditShape {
    None,    // nothing to open: an action ran, a message was shown or the click is ignored
    List,    // Combo with items
    Number,  // inputTxt with the unit keys
    Adjust,  // the fine adjust dialog
    Pattern, // the pattern code dialog
    Virtual, // the virtual keyboard or panel
};

struct EditPlan {
    EditShape shape = EditShape::None;
    QString caption;
    QStringList items;
    QString value;         // the Combo's text, or inputTxt's number
    bool editable = false; // the Combo takes typed text
};

// PraseCtrlList's decision for a node that passed the tree's rules. Nodes without
// a dialog act here; "Memory Size" shows its message.
EditPlan PlanEdit(const EditTarget& target);

// Runs a download for the actions that end in one; the window shows it in its
// progress frame. By default the reading frame runs without a window.
extern std::function<void()> EditorDownload;
