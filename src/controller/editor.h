#pragma once
// The value editor without its window: which node a tree path names, what the
// dialog offers for it, the nodes that act at once, and OK's store, send and
// read-back. The window and `selvane-cli set` both go through these.

#include <QString>
#include <QStringList>
#include <functional>

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

// Runs a download for the actions that end in one; the window shows it in its
// progress frame. By default the reading frame runs without a window.
extern std::function<void()> EditorDownload;

// A time text as the instrument takes it: upper case, "NS", "US", "MS" into
// "e-9", "e-6", "e-3", else the last character into "e0" ("2.000S" "2.000e0").
QString TimeWireExponent(const QString& text);
// True when the text reads whole as a number (blanks around allowed).
bool IsNumberText(const QString& text);
