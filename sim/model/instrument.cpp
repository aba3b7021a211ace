#include "model/instrument.h"

#include "model/commandparser.h"
#include "model/mathblocks.h"
#include "model/parameterblock.h"
#include "model/simcontext.h"
#include "screen/screencodes.h"
#include "screen/screenview.h"

namespace {

using CommandFamily = bool (*)(const ScpiCommand&, SimContext&, QByteArray&);

const CommandFamily Families[] = {channelCommand, timebaseCommand, acquireDisplayCommand,
                                  triggerCommand, dataCommand,     runCommand,
                                  keyCommand};

} // namespace

Instrument::Instrument(const InstrumentOptions& options)
    : options_(options), state_(powerOnState()), acquisition_(state_)
{
}

Instrument::~Instrument() = default;

QByteArray Instrument::handleCommon(const QByteArray& header, bool query)
{
    if (header == "*IDN" && query) return options_.idn.toUtf8() + '\n';
    if (header == "*RST" && !query) {
        state_ = powerOnState();
        acquisition_.reset(state_);
    }
    return {};
}

QByteArray Instrument::handle(const QByteArray& line)
{
    const std::optional<ScpiCommand> command = parseCommand(line);
    if (!command) return {};
    if (command->path.size() == 1 && command->path[0].startsWith('*'))
        return handleCommon(command->path[0], command->query);
    SimContext context{state_, acquisition_};
    QByteArray reply;
    for (CommandFamily family : Families) {
        if (family(*command, context, reply)) break;
    }
    return reply;
}

QByteArray Instrument::screenCodes(int channel) const
{
    return channelScreenCodes(state_, frame(), channel - 1);
}

QByteArray Instrument::mathCodes() const
{
    return mathScreenCodes(state_, frame());
}

QByteArray Instrument::fftCodes() const
{
    return fftScreenCodes(state_, frame());
}

QByteArray Instrument::recordCodes(int channel, int count) const
{
    return channelRecordCodes(state_, frame(), channel - 1, count);
}

double Instrument::sampleRate(int channel) const
{
    return ::sampleRate(state_, std::clamp(channel - 1, 0, Channels - 1));
}

QByteArray Instrument::parameterBytes() const
{
    return parameterBlock(state_, frame());
}

ScreenPicture Instrument::screenPicture() const
{
    return screenPictureOf(state_, frame(), acquisition_.waiting());
}
