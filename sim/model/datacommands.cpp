// The readings: :WAVEFORM blocks, :MEASURE values and the screen picture.
// A reading starts a new frame while the instrument runs (see Acquisition).
#include "model/mathblocks.h"
#include "model/measurements.h"
#include "model/parameterblock.h"
#include "model/simcontext.h"
#include "model/simtext.h"
#include "screen/screencodes.h"
#include "screen/screenview.h"

namespace {

constexpr char NoMeasurement[] = "9.9E+37\n";

QByteArray screenData(const QByteArray& source, SimContext& context)
{
    SimState& state = context.state;
    Acquisition& acquisition = context.acquisition;
    if (const std::optional<int> channel = channelWord(source)) {
        acquisition.deliver(state, Delivery(*channel));
        return definiteBlock(channelScreenCodes(state, acquisition.frame(), *channel));
    }
    if (source == "MATH") {
        acquisition.deliver(state, Delivery::Math);
        return definiteBlock(mathScreenCodes(state, acquisition.frame()));
    }
    if (source == "FFT") {
        acquisition.deliver(state, Delivery::Fft);
        return definiteBlock(fftScreenCodes(state, acquisition.frame()));
    }
    if (source == "XY") {
        acquisition.deliver(state, Delivery::XY);
        return definiteBlock(xyCodes(state, acquisition.frame()));
    }
    if (source == "DIGITAL") return definiteBlock({}); // this family has no logic inputs
    return {};
}

QByteArray parameterReply(SimContext& context)
{
    context.acquisition.startReading(context.state);
    return definiteBlock(parameterBlock(context.state, context.acquisition.frame()));
}

bool waveformCommand(const QByteArray& field, const ScpiCommand& command, SimContext& context,
                     QByteArray& reply)
{
    if (field == "SCREENDATA" || field == "DATA")
        reply = command.query ? screenData(command.upperArgument, context) : QByteArray();
    else if (field == "PARAMETER")
        reply = command.query ? parameterReply(context) : QByteArray();
    else if (field == "FORMAT")
        reply = command.query ? textReply("BYTE") : QByteArray();
    else if (field == "SYSMEMSIZE")
        reply = command.query ? QByteArray::number(context.state.timebase.memorySize) + '\n' : QByteArray();
    else if (field == "WINMEMSIZE")
        reply = command.query ? QByteArray::number(ScreenPointCount) + '\n' : QByteArray();
    else
        return field == "WINDOWZOOM" || field == "STARTOFROLL" || field == "ERASEOFROLL";
    return true;
}

QByteArray measureReply(const QByteArray& mnemonic, const ScpiCommand& command, SimContext& context)
{
    const std::optional<Measure> measure = measureByMnemonic(mnemonic);
    if (!measure) return {};
    const int channel = channelWord(command.upperArgument).value_or(context.state.measureSource);
    context.acquisition.catchUp(context.state);
    const MeasureSet values = measureChannel(context.state, context.acquisition.frame(), channel);
    const std::optional<double> value = values[int(*measure)];
    return value ? sciReply(*value) : QByteArray(NoMeasurement);
}

// :MEASURE:SOURCE starts a measuring pass, so its values share one frame.
bool measureCommand(const QByteArray& field, const ScpiCommand& command, SimContext& context,
                    QByteArray& reply)
{
    SimState& state = context.state;
    if (field == "SOURCE") {
        if (command.query) {
            reply = "CHANNEL" + QByteArray::number(state.measureSource + 1) + '\n';
        } else if (const std::optional<int> channel = channelWord(command.upperArgument)) {
            state.measureSource = *channel;
            context.acquisition.startReading(state);
        }
        return true;
    }
    if (!command.query || !measureByMnemonic(field)) return false;
    reply = measureReply(field, command, context);
    return true;
}

QByteArray pictureReply(SimContext& context)
{
    context.acquisition.deliver(context.state, Delivery::Picture);
    const Acquisition& acquisition = context.acquisition;
    return definiteBlock(
        renderScreenBmp(screenPictureOf(context.state, acquisition.frame(), acquisition.waiting())));
}

} // namespace

bool dataCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply)
{
    if (command.path.size() != 2) return false;
    const QByteArray& root = command.path[0];
    const QByteArray& field = command.path[1];
    if (root == "WAVEFORM") return waveformCommand(field, command, context, reply);
    if (root == "MEASURE") return measureCommand(field, command, context, reply);
    if (command.is({"DISPLAY", "DATA"}) && command.query) {
        reply = pictureReply(context);
        return true;
    }
    return false;
}
