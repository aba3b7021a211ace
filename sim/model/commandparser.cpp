#include "model/commandparser.h"

#include <cctype>

namespace {

const struct {
    const char* shortForm;
    const char* longForm;
} ShortForms[] = {
    {"TRIG", "TRIGGER"},
    {"PATT", "PATTERN"},
    {"CHAN", "CHANNEL"},
    {"TIM", "TIMEBASE"},
    {"ACQ", "ACQUIRE"},
    {"DISP", "DISPLAY"},
    {"MEAS", "MEASURE"},
    {"WAV", "WAVEFORM"},
    {"ALT", "ALTERNATION"},
    {"SOUR", "SOURCE"},
    {"CURRSOUR", "CURRENTSOURCE"},
    {"LEV", "LEVEL"},
    {"COUP", "COUPLING"},
    {"SENS", "SENSITIVITY"},
    {"HOLD", "HOLDOFF"},
    {"SWE", "SWEEP"},
    {"STAT", "STATUS"},
    {"SCAL", "SCALE"},
    {"OFFS", "OFFSET"},
    {"PROB", "PROBE"},
    {"BWL", "BWLIMIT"},
    {"INV", "INVERT"},
    {"FORM", "FORMAT"},
    {"AVER", "AVERAGES"},
    {"POL", "POLARITY"},
    {"STAN", "STANDARD"},
    {"DUR", "DURATION"},
    {"PULS", "PULSE"},
    {"VID", "VIDEO"},
    {"SLOP", "SLOPE"},
    {"QUAL", "QUALIFIER"},
    {"PAR", "PARAMETER"},
};

QByteArray expandShortForm(const QByteArray& stem)
{
    for (const auto& form : ShortForms) {
        if (stem == form.shortForm) return form.longForm;
    }
    return stem;
}

// "TRIGGERPULSE" is a header whose colon went missing; the instrument reads
// it as its two pieces.
QList<QByteArray> splitGluedTrigger(const QByteArray& piece)
{
    if (piece == "TRIGGER%50") return {"TRIG%50"};
    if (piece.startsWith("TRIGGER") && piece.size() > 7 && piece[7] != '%')
        return {"TRIGGER", canonicalMnemonic(piece.mid(7))};
    return {piece};
}

QList<QByteArray> headerPath(const QByteArray& header)
{
    QList<QByteArray> path;
    for (const QByteArray& piece : header.split(':')) {
        if (piece.isEmpty()) continue;
        path += splitGluedTrigger(canonicalMnemonic(piece));
    }
    return path;
}

} // namespace

QByteArray canonicalMnemonic(const QByteArray& mnemonic)
{
    const QByteArray upper = mnemonic.toUpper();
    int stemEnd = upper.size();
    while (stemEnd > 0 && std::isdigit(static_cast<unsigned char>(upper[stemEnd - 1])))
        --stemEnd;
    return expandShortForm(upper.left(stemEnd)) + upper.mid(stemEnd);
}

std::optional<ScpiCommand> parseCommand(const QByteArray& line)
{
    const QByteArray text = line.trimmed();
    int blank = 0;
    while (blank < text.size() && !std::isspace(static_cast<unsigned char>(text[blank])))
        ++blank;
    QByteArray header = text.left(blank);
    ScpiCommand command;
    command.query = header.endsWith('?');
    if (command.query) header.chop(1);
    command.path = headerPath(header);
    if (command.path.isEmpty()) return std::nullopt;
    command.argument = text.mid(blank).trimmed();
    command.upperArgument = command.argument.toUpper();
    return command;
}

bool ScpiCommand::is(std::initializer_list<const char*> pieces) const
{
    if (qsizetype(pieces.size()) != path.size()) return false;
    int i = 0;
    for (const char* piece : pieces) {
        if (path[i++] != piece) return false;
    }
    return true;
}

QList<QByteArray> ScpiCommand::fields() const
{
    QList<QByteArray> result;
    for (const QByteArray& field : upperArgument.split(','))
        result.append(field.trimmed());
    return result;
}
