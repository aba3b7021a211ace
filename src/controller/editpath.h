#pragma once
// The value editor's node: which node a tree path names, and the rule it must
// pass before its dialog opens.

#include <QString>

// The node a full path names ("KV7200B\Trigger\CH3\Level [0.00div]").
struct EditTarget {
    QString group;      // English names: "Trigger"
    QString item;       // "Level"; for a node under a sub-group the sub-group's name
    QString sub;        // "Level" under "CH3", "Time/Div" under "WindowA", "CH2" under "Code"
    QString caption;    // the node's own caption, for the dialog's frame
    QString EditKey;    // the captions joined; an alternate window reads "CH1" (A) or "CH2" (B)
    int channel = 0;    // 1 to 4 in a CHn group
    int altWindow = -1; // 0 A, 1 B under an alternate channel node or WindowA/WindowB
    int input = -1;     // the pattern row under "Code" (0 to 5) or "Level" (0 to 4)
    bool known = false; // the path names a node of the present layout or a captioned item
};
EditTarget ParseEditPath(const QString& fullPath);
// The text of the node a full path names in the present layout; empty when there is none.
QString NodeTextAt(const QString& fullPath);

// The rule a node must pass before it opens, read from the Format node as the tree
// shows it: -1 when it may open, else the message code (1 trigger, 2 horizontal, 0 other).
int EditRule(const EditTarget& target);
