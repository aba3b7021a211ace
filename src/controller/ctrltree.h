#pragma once
// The layout of the settings tree, built from CtrlData without any widget: the
// window turns it into tree items, tests and the command line read it as is.

#include <QString>
#include <vector>

struct CtrlNode {
    QString caption; // in the language in force
    QString english; // the English caption, for the editor's dispatch
    QString text;    // what the tree shows: caption, or caption " [" value "]"
    int row = 0;     // NodeTable row
    int column = 0;  // NodeTable column: the group, or the parent's row below a group's child
    std::vector<CtrlNode> children;
};

// Fixed group numbers; group 6 (LA) exists only with logic inputs.
enum CtrlGroup : int {
    GroupRunning = 1,
    GroupLa = 6,
    GroupTimeBase = 7,
    GroupTrigger = 8,
    GroupAcquire = 9,
    GroupDisplay = 10,
    GroupVirtualPanel = 11,
};

// The root ("KV7200B") with every group and node of the current layout.
CtrlNode BuildCtrlTree();

// caption " [" value "]"
QString NodeText(const QString& caption, const QString& value);
