#include "panel/keypress.h"

#include "link/linkcommands.h"
#include "link/vocabulary.h"
#include "panel/keyrepeat.h"
#include "platform/platform.h"

namespace {

namespace K = Vocab::Key;

// WriteCmd spends 100 ms of each tick; the rest of the interval is waited here.
constexpr int CommandPause = 100;

// clang-format off
constexpr QLatin1StringView PanelKeyPieces[] = {
    K::Acquire, K::Auto, K::Ch[0], K::Ch[1], K::Cursor, K::Display, K::F[0], K::F[1], K::F[2], K::F[3],
    K::F[4], K::Math, K::Measure, K::Ref, K::Run, K::Storage, K::MenuTime, Vocab::Whole::TrigTo50,
    K::TrigForce, K::TrigMenu, K::Utility,
};
// clang-format on

} // namespace

void HoldKey(const KeyRef& key, KeySet set, int ticks)
{
    const QString command = KeyCommandOf(key, set);
    if (command.isEmpty()) return;
    if (key.def->kind != KeyKind::Repeat) return WriteCmd(command);
    KeyRepeat repeat([](bool) {});
    repeat.press(command);
    for (int i = 0; i < ticks; ++i) {
        Sleep(ButtonPressInterval - CommandPause);
        repeat.tick();
    }
    repeat.release();
    if (RepeatKeyClicks(key, set)) WriteCmd(command);
}

void PressPanelKey(PanelKey key)
{
    WriteCmd(Vocab::KeyCommand(PanelKeyPieces[int(key)]));
}
