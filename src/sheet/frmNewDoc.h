#pragma once
// The new and open document dialogs: which kind of document File > New makes
// and which File > Open reads.

#include "sheet/frmDocChoice.h"

class frmDataSheetTree;
class frmCtrlList;

class frmNewDoc : public frmDocChoice {
    Q_OBJECT
  public:
    explicit frmNewDoc(QWidget* parent = nullptr);
};

// The English title stays "New Document", as the dialog always had it.
class frmOpenDoc : public frmDocChoice {
    Q_OBJECT
  public:
    explicit frmOpenDoc(QWidget* parent = nullptr);
};

// The choices of the new dialog, as DocChoice numbers them; the open dialog has the first two.
enum NewDocChoice : int {
    NewDocDataSheet = 1,
    NewDocController = 2,
    NewDocWave = 3,
    NewDocMeasure = 4,
    NewDocData = 5,
    NewDocRecord = 6,
    NewDocMemoryWave = 7,
};

// Show the dialog modal; true when OK took a choice (DocChoice holds it).
bool AskNewDocument(QWidget* parent);
bool AskOpenDocument(QWidget* parent);
// Runs a data sheet choice on the tree; the controller's choice is left to its pane.
void RunNewDocumentChoice(frmDataSheetTree* tree, int choice);
