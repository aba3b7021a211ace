// :ACQUIRE, :DISPLAY, :MATH, :FFT and the few system settings.
// :MATH:OPERATE, :FFT:SOURCE and :FFT:WINDOW are the simulator's own
// additions: the front panel reaches these settings through its menus.
#include "model/simcontext.h"
#include "model/simtext.h"
#include "screen/screencodes.h"

namespace {

const int BaudRates[] = {300, 600, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200};

QByteArray averagesSetting(const ScpiCommand& command, int& averages)
{
    int requested = averages;
    const QByteArray reply = integerSetting(command, requested, 2, 256);
    if ((requested & (requested - 1)) == 0) averages = requested;
    return reply;
}

QByteArray sampleRateQuery(const ScpiCommand& command, const SimState& state)
{
    if (!command.query) return {};
    const std::optional<int> channel = channelWord(command.upperArgument);
    return sciReply(sampleRate(state, channel.value_or(0)));
}

bool acquireCommand(const QByteArray& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    if (field == "TYPE")
        reply = keywordSetting(command, state.acquire.type, Keywords::acquireType());
    else if (field == "MODE")
        reply = keywordSetting(command, state.acquire.equivalentTime, Keywords::samplingMode());
    else if (field == "AVERAGES")
        reply = averagesSetting(command, state.acquire.averages);
    else if (field == "SRATE")
        reply = sampleRateQuery(command, state);
    else
        return false;
    return true;
}

bool displayCommand(const QByteArray& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    if (field == "TYPE")
        reply = keywordSetting(command, state.display.vectors, Keywords::displayType());
    else if (field == "GRID")
        reply = keywordSetting(command, state.display.grid, Keywords::grid());
    else if (field == "PERSIST")
        reply = flagSetting(command, state.display.persist);
    else if (field == "MENUDISPLAY")
        reply = flagSetting(command, state.display.menu);
    else if (field != "CLEAR")
        return false;
    return true;
}

void setMathOperation(MathState& math, MathOperation operation)
{
    if (operation != MathOperation::Fft) math.lastArithmetic = operation;
    math.operation = operation;
}

QByteArray fftDisplaySetting(const ScpiCommand& command, MathState& math)
{
    bool on = math.display && math.operation == MathOperation::Fft;
    const QByteArray reply = flagSetting(command, on);
    if (command.query || !parseFlag(command.upperArgument)) return reply;
    if (on) {
        setMathOperation(math, MathOperation::Fft);
        math.display = true;
    } else if (math.operation == MathOperation::Fft) {
        math.operation = math.lastArithmetic;
    }
    return {};
}

bool mathCommand(const QByteArray& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    if (field == "DISPLAY") {
        reply = flagSetting(command, state.math.display);
    } else if (field == "OPERATE") {
        MathOperation operation = state.math.operation;
        reply = keywordSetting(command, operation, Keywords::mathOperation());
        setMathOperation(state.math, operation);
    } else {
        return false;
    }
    return true;
}

QByteArray fftSourceSetting(const ScpiCommand& command, int& source)
{
    if (command.query) return source == 1 ? "CHANNEL2\n" : "CHANNEL1\n";
    const std::optional<int> channel = channelWord(command.upperArgument);
    if (channel && *channel < 2) source = *channel;
    return {};
}

bool fftCommand(const QByteArray& field, const ScpiCommand& command, SimState& state, QByteArray& reply)
{
    if (field == "DISPLAY")
        reply = fftDisplaySetting(command, state.math);
    else if (field == "SOURCE")
        reply = fftSourceSetting(command, state.fft.source);
    else if (field == "WINDOW")
        reply = keywordSetting(command, state.fft.window, Keywords::fftWindow());
    else
        return false;
    return true;
}

QByteArray baudSetting(const ScpiCommand& command, int& baud)
{
    int requested = baud;
    const QByteArray reply = integerSetting(command, requested, BaudRates[0], 115200);
    if (std::find(std::begin(BaudRates), std::end(BaudRates), requested) != std::end(BaudRates))
        baud = requested;
    return reply;
}

} // namespace

bool acquireDisplayCommand(const ScpiCommand& command, SimContext& context, QByteArray& reply)
{
    if (command.path.size() != 2) return false;
    SimState& state = context.state;
    const QByteArray& root = command.path[0];
    const QByteArray& field = command.path[1];
    if (root == "ACQUIRE") return acquireCommand(field, command, state, reply);
    if (root == "DISPLAY") return displayCommand(field, command, state, reply);
    if (root == "MATH") return mathCommand(field, command, state, reply);
    if (root == "FFT") return fftCommand(field, command, state, reply);
    if (command.is({"RS232", "BAUD"})) {
        reply = baudSetting(command, state.baudRate);
        return true;
    }
    if (command.is({"SYSTEM", "LCD"})) {
        reply = integerSetting(command, state.lcdBrightness, 0, 100);
        return true;
    }
    return false;
}
