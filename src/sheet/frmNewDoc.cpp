#include "sheet/frmNewDoc.h"

#include "document/programiconwidgets.h"
#include "document/sheetstate.h"
#include "sheet/frmDataSheetTree.h"

namespace {

constexpr int NewChoices = 7;
constexpr int OpenChoices = 2;

bool ask(frmDocChoice& dialog)
{
    DocChosen = false;
    dialog.exec();
    return DocChosen;
}

} // namespace

frmNewDoc::frmNewDoc(QWidget* parent)
    : frmDocChoice("frmNewDoc", CaptionList::NewDocument, NewChoices, parent)
{
    SetWindowPicture(this, Picture::New);
}

frmOpenDoc::frmOpenDoc(QWidget* parent)
    : frmDocChoice("frmOpenDoc", CaptionList::OpenDocument, OpenChoices, parent)
{
    SetWindowPicture(this, Picture::Open);
}

bool AskNewDocument(QWidget* parent)
{
    frmNewDoc dialog(parent);
    return ask(dialog);
}

bool AskOpenDocument(QWidget* parent)
{
    frmOpenDoc dialog(parent);
    return ask(dialog);
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
