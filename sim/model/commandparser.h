#pragma once
// One line of the command language taken apart: the header's mnemonics in
// their long upper-case form, whether it asks, and what follows the blank.

#include <QByteArray>
#include <QList>
#include <optional>

struct ScpiCommand {
    QList<QByteArray> path; // ":trig:patt:patt" gives TRIGGER, PATTERN, PATTERN
    bool query = false;
    QByteArray argument;      // trimmed, as sent
    QByteArray upperArgument; // the same, upper case

    bool is(std::initializer_list<const char*> pieces) const;
    // The argument's comma-separated fields, trimmed and upper case.
    QList<QByteArray> fields() const;
};

// Nothing for an empty line or one without a header.
std::optional<ScpiCommand> parseCommand(const QByteArray& line);

// The long form of one mnemonic: case and the short forms the instrument
// takes ("TRIG", "chan1", "CURRentSOURce") do not matter.
QByteArray canonicalMnemonic(const QByteArray& mnemonic);
