#pragma once
// Sets the captions of a window's controls from a caption list, so that each
// window's caption routine is a table of (control name, slot) and one call.

#include "text/captions.h"

#include <initializer_list>

class QObject;

enum class CaptionRole : unsigned char {
    Auto,        // what the control shows: button and label text, group and menu title, window title
    ToolTip,     // the tooltip
    WindowTitle, // the window title of a widget that is not a window on its own
    TabText,     // the tab of a page in a QTabWidget
};

struct CaptionBinding {
    const char* objectName; // empty: the root itself
    int slot;
    CaptionRole role = CaptionRole::Auto;
};

// Sets one control's caption for its role; unknown kinds of object are left alone.
void SetCaption(QObject* target, const QString& text, CaptionRole role = CaptionRole::Auto);

// Finds each named control below root and gives it the caption of its slot in the
// language. Names that are not found and slots the list lacks are skipped.
void ApplyCaptions(QObject* root, CaptionList list, std::initializer_list<CaptionBinding> bindings,
                   int language);
