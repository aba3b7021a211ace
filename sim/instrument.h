#pragma once
// The simulated KV7200B as the transports see it: one command line in, the
// reply bytes out. Everything behind this (state, signals, blocks) is the
// instrument model's business.

#include <QByteArray>
#include <QString>

struct InstrumentOptions {
    // The four fields of the *IDN? reply: vendor, model, serial, firmware.
    QString idn = "KORVA TECHNOLOGIES,KV7204B,KV72040001,00.03.05.00.00";
};

class Instrument {
public:
    explicit Instrument(const InstrumentOptions& options = {});
    ~Instrument();
    Instrument(const Instrument&) = delete;
    Instrument& operator=(const Instrument&) = delete;

    // Handles one command or query (without its line feed). Returns the whole
    // reply as it goes on the wire: text ending in "\n", or a definite-length
    // block ending in "\n"; empty for a command, and for a query the
    // instrument does not know.
    QByteArray handle(const QByteArray& line);

private:
    InstrumentOptions options_;
};
