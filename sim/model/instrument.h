#pragma once
// The simulated KV7200B as the transports see it: one command line in, the
// reply bytes out. Behind it: the instrument state (simstate.h), the
// acquisition of the signals (acquisition.h) and the command families.

#include "model/acquisition.h"
#include "model/simstate.h"
#include "screen/screenpicture.h"

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

    // The settings as they stand.
    const SimState& state() const { return state_; }
    // The frame the screen holds now. The accessors below read it as it is;
    // only readings over handle() take new frames.
    const Frame& frame() const { return acquisition_.frame(); }

    // Channel 1 to 4: 600 screen codes, 1200 in peak detect (minimum
    // voltages, then maximum voltages); empty when the channel was off.
    QByteArray screenCodes(int channel) const;
    QByteArray mathCodes() const; // 600 codes
    QByteArray fftCodes() const;  // 1024 codes
    // Channel 1 to 4: `count` codes of the acquisition memory, one a sample
    // period, the trigger in the middle; empty when the channel was off.
    QByteArray recordCodes(int channel, int count) const;
    // Channel 1 to 4: samples a second.
    double sampleRate(int channel) const;
    // The 80 bytes of :WAVEFORM:PARAMETER? without their block frame.
    QByteArray parameterBytes() const;
    // What the instrument's screen shows.
    ScreenPicture screenPicture() const;

  private:
    QByteArray handleCommon(const QByteArray& header, bool query);

    InstrumentOptions options_;
    SimState state_;
    Acquisition acquisition_;
};
