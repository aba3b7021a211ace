#pragma once
// The instrument's front-panel keys as the virtual keyboard and panel show them:
// one row per control, its kind and the command it sends. A control with an
// index stands for four (CH1 to CH4) and is named with the index behind it
// ("VK_P_V_0" .. "VK_P_V_3").

#include <QLatin1StringView>
#include <QString>
#include <QStringList>
#include <optional>
#include <span>

enum class KeyKind : unsigned char {
    Release, // sent on release of the mouse
    Click,   // sent on click: the knob pushes, the time and volt keys
    Repeat,  // sent on press with a count, again on each tick while held
    Inert,   // sends nothing
};

// How a row's command is made.
enum class KeyForm : unsigned char {
    Key,          // ":KEY" and the piece
    Whole,        // the piece as it is
    PanelBareKey, // nothing from the keyboard; the panel sends ":KEY" alone
    None,
};

// The keyboard (frmV_Key) and the panel (frmV_Panel) differ in two keys.
enum class KeySet : unsigned char { Keyboard, Panel };

struct KeyDef {
    const char* control; // objectName, or its stem for an indexed control
    KeyKind kind;
    const QLatin1StringView* pieces; // one piece, or four for an indexed control
    int indexCount;                  // 1, or 4
    KeyForm form = KeyForm::Key;
};

struct KeyRef {
    const KeyDef* def = nullptr;
    int index = 0;
};

std::span<const KeyDef> KeyTable();

// "VK_Run", "VK_V_Inc_2".
QString KeyControlName(const KeyRef& key);
// Every control name, in table order.
QStringList KeyControlNames();
std::optional<KeyRef> FindKeyControl(QStringView name);

// The command a press sends in that window; empty when it sends nothing.
QString KeyCommandOf(const KeyRef& key, KeySet set);
// Whether a repeat key of that window sends its bare command on the click after a release.
bool RepeatKeyClicks(const KeyRef& key, KeySet set);
