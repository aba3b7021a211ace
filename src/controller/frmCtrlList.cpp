#include "controller/frmCtrlList.h"

#include "text/captionwidgets.h"

namespace {
constexpr int windowCaptionSlot = 0; // "DSO Controller"
}

frmCtrlList::frmCtrlList(QWidget* parent) : QWidget(parent)
{
    setObjectName("frmCtrlList");
}

void frmCtrlList::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::CtrlList, {{"", windowCaptionSlot, CaptionRole::WindowTitle}}, language);
}

// The tree and its file commands arrive with the controller itself.
void frmCtrlList::RefreshNodeTexts() {}
void frmCtrlList::mnuSaveCtrl_Click() {}
void frmCtrlList::OpenCtrl(const QString&) {}
