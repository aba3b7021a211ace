#include "instrument.h"

// A first answer so the transports have something to serve; the instrument
// model replaces it.
Instrument::Instrument(const InstrumentOptions& options) : options_(options) {}
Instrument::~Instrument() = default;

QByteArray Instrument::handle(const QByteArray& line)
{
    if (line.trimmed().toUpper() == "*IDN?")
        return options_.idn.toUtf8() + '\n';
    return {};
}
