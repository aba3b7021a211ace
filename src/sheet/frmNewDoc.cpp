#include "sheet/frmNewDoc.h"

#include "text/captionwidgets.h"
#include "text/language.h"
#include "sheet/frmDataSheetTree.h"
#include "document/sheetstate.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

QPushButton* makeButton(QWidget* parent, const char* name)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

} // namespace

frmNewDoc::frmNewDoc(QWidget* parent) : QDialog(parent)
{
    setObjectName("frmNewDoc");
    fraFileType = new QGroupBox(this);
    fraFileType->setObjectName("fraFileType");
    auto* options = new QVBoxLayout(fraFileType);
    for (size_t i = 0; i < NewOption.size(); ++i) {
        NewOption[i] = new QRadioButton(fraFileType);
        NewOption[i]->setObjectName(QStringLiteral("NewOption_%1").arg(i));
        options->addWidget(NewOption[i]);
    }
    NewOption[0]->setChecked(true);
    cmdOK = makeButton(this, "cmdOK");
    cmdOK->setDefault(true);
    cmdCancel = makeButton(this, "cmdCancel");
    connect(cmdOK, &QPushButton::clicked, this, &frmNewDoc::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmNewDoc::cmdCancel_Click);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fraFileType);
    layout->addLayout(buttons);
    SetCaptions(Language);
}

void frmNewDoc::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::NewDocument,
                  {{"", 0},
                   {"fraFileType", 1},
                   {"NewOption_0", 2},
                   {"NewOption_1", 3},
                   {"NewOption_2", 4},
                   {"NewOption_3", 5},
                   {"NewOption_4", 6},
                   {"NewOption_5", 7},
                   {"NewOption_6", 8},
                   {"cmdOK", 9},
                   {"cmdCancel", 10}},
                  language);
}

// The first option that is on decides; with none on the last choice stays.
void frmNewDoc::cmdOK_Click()
{
    for (size_t i = 0; i < NewOption.size(); ++i)
        if (NewOption[i]->isChecked()) {
            DocChoice = static_cast<int>(i) + 1;
            break;
        }
    DocChosen = true;
    accept();
}

void frmNewDoc::cmdCancel_Click()
{
    reject();
}

bool AskNewDocument(QWidget* parent)
{
    DocChosen = false;
    frmNewDoc dialog(parent);
    dialog.exec();
    return DocChosen;
}

void RunNewDocumentChoice(frmDataSheetTree* tree, int choice)
{
    if (!tree) return;
    switch (choice) {
    case NewDocDataSheet: tree->mnuNewDataSheet_Click(); break;
    case NewDocWave: tree->AddWindow(SheetKind::Wave); break;
    case NewDocMeasure: tree->AddWindow(SheetKind::Measure); break;
    case NewDocData: tree->AddWindow(SheetKind::Data); break;
    case NewDocRecord: tree->AddWindow(SheetKind::Record); break;
    case NewDocMemoryWave: tree->AddWindow(SheetKind::MemoryWave); break;
    default: break;
    }
}
