#pragma once
// What the command handlers work on, and the families they come in. Each
// family returns false for a command that isn't its own; for its own it
// fills the reply (empty for a command, or for a query it can't answer).

#include "model/acquisition.h"
#include "model/commandparser.h"
#include "model/keywords.h"
#include "model/simstate.h"

#include <QByteArray>

struct SimContext {
    SimState& state;
    Acquisition& acquisition;
};

bool channelCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply);
bool timebaseCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply);
bool acquireDisplayCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply);
bool triggerCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply);
bool patternCommand(const ScpiCommand& command, SimState& state, QByteArray& reply);
bool alternationCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply);
bool dataCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply);
bool runCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply);
bool keyCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply);

// Settings both ways: a query answers the field, a command stores an
// accepted value and leaves the field alone otherwise.
QByteArray flagSetting(const ScpiCommand& command, bool& field);
QByteArray numberSetting(const ScpiCommand& command, double& field, double low, double high);
QByteArray integerSetting(const ScpiCommand& command, int& field, int low, int high);

// Time windows: a command may name its window behind a comma (",SOURCEA"),
// which the caller has already resolved.
QByteArray timeScaleSetting(const ScpiCommand& command, const SimState& state, TimeWindow& window);
QByteArray timeOffsetSetting(const ScpiCommand& command, TimeWindow& window);
// The window of the alternate source that commands address now.
TimeWindow& currentAltWindow(SimState& state);

template <typename E> QByteArray keywordSetting(const ScpiCommand& command, E& field, KeywordTable<E> table)
{
    if (command.query) return keywordText(table, field) + '\n';
    if (const std::optional<E> value = findKeyword(table, command.upperArgument)) field = *value;
    return {};
}
