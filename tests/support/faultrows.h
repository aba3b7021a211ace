#pragma once
// The simulator's faults as rows the fault matrices share: which options play
// each, placed against a transfer of a known length.

#include <QString>
#include <QStringList>

enum class FaultKind { None, Drop, Silent, Garbage, ShortBlocks, Delay };

struct FaultRow {
    const char* name;
    FaultKind kind;
    int dropAt = 0; // for a drop: 0 the transfer's first command, 1 its middle one, 2 its last
};

inline const FaultRow FaultRows[] = {
    {"Sound", FaultKind::None},
    {"DropAtStart", FaultKind::Drop, 0},
    {"DropInMiddle", FaultKind::Drop, 1},
    {"DropAtEnd", FaultKind::Drop, 2},
    {"Silent", FaultKind::Silent},
    {"Garbage", FaultKind::Garbage},
    {"ShortBlocks", FaultKind::ShortBlocks},
    {"Delay", FaultKind::Delay},
};

// Replies this late outlast the shortened time-out below.
inline constexpr int FaultDelayMs = 400;
// The session's time-out while a fault plays: long enough for a sound reply,
// short enough that a missing one costs little.
inline constexpr int FaultTimeoutMs = 150;

// The simulator's options for a fault against a transfer that sends `commands`
// after `before` others (the connect's), asking `silentQuery` on the way.
inline QStringList FaultOptions(const FaultRow& fault, int before, int commands, const QString& silentQuery)
{
    switch (fault.kind) {
    case FaultKind::None: return {};
    case FaultKind::Drop: {
        const int at = fault.dropAt == 0 ? 0 : fault.dropAt == 1 ? commands / 2 : commands - 1;
        return {"--drop-after", QString::number(before + at)};
    }
    case FaultKind::Silent: return {"--silent", silentQuery};
    case FaultKind::Garbage: return {"--garbage"};
    case FaultKind::ShortBlocks: return {"--short-blocks"};
    case FaultKind::Delay: return {"--delay-ms", QString::number(FaultDelayMs)};
    }
    return {};
}
