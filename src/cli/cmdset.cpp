#include "cli/clihelp.h"
#include "cli/clilink.h"
#include "cli/subcommands.h"

#include "acquire/operation.h"
#include "controller/ctrlcommands.h"
#include "controller/ctrlstate.h"
#include "controller/download.h"
#include "controller/editfields.h"
#include "controller/editor.h"
#include "controller/fineadjust.h"
#include "link/timeouttimer.h"
#include "text/productinfo.h"

#include <QCommandLineParser>
#include <cstdio>

namespace {
enum : int { ExitDone = 0, ExitUsage = 2, ExitRefused = 3 };

// The editor's OK for the node, as the dialog of its shape would call it.
bool applyPlanned(const EditTarget& target, const EditPlan& plan, const QString& value)
{
    switch (plan.shape) {
    case EditShape::List:
        if (!plan.editable && !plan.items.contains(value)) {
            std::fprintf(stderr, "set: the node takes one of: %s\n", qPrintable(plan.items.join(", ")));
            return false;
        }
        [[fallthrough]];
    case EditShape::Number: return ApplyEdit(target, value).outcome == EditOutcome::Stored;
    case EditShape::Adjust: CtrlDialogAdjustOK(target.channel - 1, value); return true;
    case EditShape::Pattern:
        return target.input >= 0 && ApplyEdit(target, value).outcome == EditOutcome::Stored;
    // An action ran; a node with a value that opens nothing refuses ("Memory Size").
    case EditShape::None: return target.known && !EditField(target);
    case EditShape::Virtual: return false;
    }
    return false;
}
} // namespace

int RunSetCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Connects, downloads, and changes one setting by its tree path in the language\n"
        "in force (\"Time Base\\Time/Div\") the way the value editor does; prints the\n"
        "node's new text.");
    AddLinkOptions(parser);
    parser.addPositionalArgument("path", "Tree path below the root, parts joined by \\.");
    parser.addPositionalArgument("value", "A list value or a number text.");
    ProcessSubcommand(parser, arguments, "set",
                      "0  the setting was changed and its new text printed\n2  a usage error, or no "
                      "instrument answered\n3  the node refused the value");
    LinkOptions options;
    if (!TakeLinkOptions(parser, QStringLiteral("set"), options)) return ExitUsage;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 2) {
        std::fprintf(stderr, "set: give PATH and VALUE\n");
        return ExitUsage;
    }

    TimeOutTimer ticks; // serial replies are waited for on its ticks
    if (!OpenLinkOrSayNotFound(options)) return ExitUsage;
    ResetCtrlState();
    InstallDownloadOperation();
    RunReadingFrame({OperationDownload});
    const QString path = ProductModel + QLatin1Char('\\') + positional[0];
    const EditTarget target = ParseEditPath(path);
    if (!target.known) {
        std::fprintf(stderr, "set: no node %s\n", qPrintable(positional[0]));
        CloseLink();
        return ExitRefused;
    }
    if (const int rule = EditRule(target); rule >= 0) {
        std::fprintf(stderr, "%s\n", qPrintable(RuleMessage(rule)));
        CloseLink();
        return ExitRefused;
    }
    const bool done = applyPlanned(target, PlanEdit(target), positional[1]);
    CloseLink();
    if (!done) return ExitRefused;
    std::printf("%s\n", qPrintable(NodeTextAt(path)));
    return ExitDone;
}
