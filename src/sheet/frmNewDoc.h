#pragma once
// The new document dialog: which kind of document File > New makes.

#include <QDialog>
#include <array>

class QGroupBox;
class QPushButton;
class QRadioButton;
class frmDataSheetTree;

class frmNewDoc : public QDialog {
    Q_OBJECT
  public:
    explicit frmNewDoc(QWidget* parent = nullptr);

    void SetCaptions(int language);
    void cmdOK_Click();
    void cmdCancel_Click();

  private:
    QGroupBox* fraFileType = nullptr;
    std::array<QRadioButton*, 7> NewOption{};
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};

// The choices of the dialog, as DocChoice numbers them.
enum NewDocChoice : int {
    NewDocDataSheet = 1,
    NewDocController = 2,
    NewDocWave = 3,
    NewDocMeasure = 4,
    NewDocData = 5,
    NewDocRecord = 6,
    NewDocMemoryWave = 7,
};

// Shows the dialog modal; true when OK took a choice (DocChoice holds it).
bool AskNewDocument(QWidget* parent);
// Runs a data sheet choice on the tree; the controller's choice is left to its pane.
void RunNewDocumentChoice(frmDataSheetTree* tree, int choice);
