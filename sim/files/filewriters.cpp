#include "files/filewriters.h"

#include "files/rcdcontent.h"
#include "files/wfmcontent.h"
#include "model/acquisition.h"
#include "model/instrument.h"

#include <QSaveFile>
#include <QTextStream>
#include <optional>

namespace {

constexpr int UsageError = 2;
constexpr int WriteError = 1;
constexpr int DefaultFrames = 100;

int fail(const QString& message, int code)
{
    QTextStream(stderr) << "kv7200b-sim: " << message << '\n';
    return code;
}

// The path and the options that follow a subcommand; options may carry one value.
struct Arguments {
    QString path;
    QStringList flags;
    QString frames;
    QString error;
};

Arguments parse(const QStringList& args, const QStringList& known, bool takesFrames)
{
    Arguments out;
    for (int i = 0; i < args.size() && out.error.isEmpty(); ++i) {
        const QString& arg = args[i];
        if (takesFrames && arg == "--frames" && i + 1 < args.size())
            out.frames = args[++i];
        else if (known.contains(arg))
            out.flags << arg;
        else if (arg.startsWith("--") || !out.path.isEmpty())
            out.error = "unexpected argument " + arg;
        else
            out.path = arg;
    }
    if (out.error.isEmpty() && out.path.isEmpty()) out.error = "no output file given";
    return out;
}

int save(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return fail(QString("cannot write %1: %2").arg(path, file.errorString()), WriteError);
    return 0;
}

void send(Instrument& instrument, const QStringList& commands)
{
    for (const QString& command : commands)
        instrument.handle(command.toLatin1());
}

// The model field of the identity, the name the instrument writes into its files.
QString modelOf(Instrument& instrument)
{
    const QList<QByteArray> fields = instrument.handle("*IDN?").trimmed().split(',');
    return fields.size() > 1 ? QString::fromLatin1(fields[1]) : QString();
}

QStringList wfmSetup(const QStringList& flags)
{
    const bool longMemory = flags.contains("--long-memory");
    // Long memory gives each pair's memory to one channel, so only CH1 and CH3 stay on.
    QStringList commands = {":CHANNEL1:DISPLAY ON", ":CHANNEL3:DISPLAY ON",
                            longMemory ? ":CHANNEL2:DISPLAY OFF" : ":CHANNEL2:DISPLAY ON",
                            longMemory ? ":CHANNEL4:DISPLAY OFF" : ":CHANNEL4:DISPLAY ON"};
    if (flags.contains("--alternation")) commands << ":TRIGGER:MODE ALTERNATION";
    if (flags.contains("--peak")) commands << ":ACQUIRE:TYPE PEAKDETECT";
    if (flags.contains("--roll")) commands << ":TIMEBASE:FORMAT ROLL";
    return commands;
}

// An option the instrument did not take would give a file that doesn't say what was asked.
QString refusedOption(const SimState& state, const QStringList& flags)
{
    if (flags.contains("--alternation") && state.trigger.mode != TriggerType::Alternation)
        return "--alternation";
    if (flags.contains("--peak") && state.acquire.type != AcquireType::PeakDetect) return "--peak";
    if (flags.contains("--roll") && state.timebase.format != TimeFormat::Roll) return "--roll";
    return {};
}

std::optional<int> frameCount(const Arguments& arguments, bool secondBlock)
{
    if (arguments.frames.isEmpty()) return DefaultFrames;
    bool ok = false;
    const int frames = arguments.frames.toInt(&ok);
    const int limit = secondBlock ? RcdMaxFramesWithSecond : RcdMaxFrames;
    if (!ok || frames < 1 || frames > limit) return std::nullopt;
    return frames;
}

} // namespace

int runWriteWfm(const QStringList& args)
{
    const Arguments arguments = parse(args, {"--alternation", "--peak", "--roll", "--long-memory"}, false);
    if (!arguments.error.isEmpty()) return fail("write-wfm: " + arguments.error, UsageError);
    if (arguments.flags.contains("--long-memory") && arguments.flags.contains("--alternation"))
        return fail("write-wfm: long memory is not available in alternate trigger", UsageError);
    Instrument instrument;
    send(instrument, wfmSetup(arguments.flags));
    const SimState& state = instrument.state();
    if (const QString refused = refusedOption(state, arguments.flags); !refused.isEmpty())
        return fail("write-wfm: the instrument did not take " + refused, UsageError);
    const WfmRequest request{modelOf(instrument), arguments.flags.contains("--long-memory")};
    return save(arguments.path, writeWfm(wfmContentOf(state, Acquisition(state).frame(), request)));
}

int runWriteRcd(const QStringList& args)
{
    const Arguments arguments = parse(args, {"--second-block"}, true);
    if (!arguments.error.isEmpty()) return fail("write-rcd: " + arguments.error, UsageError);
    const bool secondBlock = arguments.flags.contains("--second-block");
    const std::optional<int> frames = frameCount(arguments, secondBlock);
    if (!frames)
        return fail("write-rcd: --frames takes a number from 1 to " +
                        QString::number(secondBlock ? RcdMaxFramesWithSecond : RcdMaxFrames),
                    UsageError);
    Instrument instrument;
    // The second block records the next channel on, so CH2 joins CH1.
    send(instrument, {":CHANNEL1:DISPLAY ON"});
    if (secondBlock) send(instrument, {":CHANNEL2:DISPLAY ON"});
    const RcdRequest request{modelOf(instrument), *frames, secondBlock};
    return save(arguments.path, writeRcd(rcdContentOf(instrument.state(), request)));
}
