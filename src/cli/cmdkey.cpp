#include "cli/clihelp.h"
#include "cli/clilink.h"
#include "cli/subcommands.h"

#include "link/linkstate.h"
#include "link/timeouttimer.h"
#include "panel/keypress.h"

#include <QCommandLineParser>
#include <cstdio>

namespace {

struct KeyPress {
    KeyRef key;
    int ticks = 0;
};

// "NAME" or "NAME@TICKS"; false for an unknown name or a bad count.
bool takePress(const QString& text, KeyPress& press)
{
    const QStringList parts = text.split(u'@');
    if (parts.size() > 2) return false;
    const std::optional<KeyRef> key = FindKeyControl(parts.first());
    if (!key) return false;
    press.key = *key;
    bool ok = true;
    press.ticks = parts.size() == 2 ? parts[1].toInt(&ok) : 0;
    return ok && press.ticks >= 0;
}

} // namespace

int RunKeyCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Presses front-panel keys as the virtual keyboard does, in the order given.\n"
        "NAME@TICKS holds a repeat key for that many ticks of 200 ms.");
    AddLinkOptions(parser);
    parser.addPositionalArgument("keys", "Controls such as VK_Run or VK_V_Pos_Inc_2@10.", "NAME[@TICKS]...");
    ProcessSubcommand(
        parser, arguments, "key",
        "0  every key was sent\n1  no instrument answered, or the link was lost\n2  a usage error");
    LinkOptions options;
    if (!TakeLinkOptions(parser, QStringLiteral("key"), options)) return 2;
    QList<KeyPress> presses;
    for (const QString& text : parser.positionalArguments()) {
        KeyPress press;
        if (!takePress(text, press)) {
            std::fprintf(stderr, "key: unknown key or count: %s\n", qPrintable(text));
            return 2;
        }
        presses.append(press);
    }
    if (presses.isEmpty()) {
        std::fputs("key: name at least one key\n", stderr);
        return 2;
    }
    TimeOutTimer ticks;
    if (!OpenLink(options)) {
        CloseLink();
        return 1;
    }
    for (const KeyPress& press : presses)
        HoldKey(press.key, KeySet::Keyboard, press.ticks);
    const bool sent = Connected;
    CloseLink();
    return sent ? 0 : 1;
}
