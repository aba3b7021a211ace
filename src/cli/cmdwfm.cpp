// selvane-cli wfm: a waveform file through the memory view's own reader, to
// JSON, CSV or a picture; or a batch of files to CSV on all cores.
#include "cli/clihelp.h"
#include "cli/clilanguage.h"
#include "cli/progressline.h"
#include "cli/subcommands.h"

#include "stored/memoryviewdraw.h"
#include "stored/memorywavecsv.h"
#include "stored/wfmfile.h"
#include "text/language.h"
#include "text/messages.h"
#include "wave/pictureexport.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QScopeGuard>
#include <algorithm>
#include <atomic>
#include <charconv>
#include <cstdio>
#include <mutex>
#include <thread>

namespace {

constexpr int Loaded = 0;
constexpr int WriteFailed = 1;
constexpr int Usage = 2;
constexpr int Refused = 3;

struct WfmOptions {
    QStringList files;
    QString json, csv, picture, csvDir;
    int language = -1;
};

bool parseWfmOptions(const QStringList& arguments, WfmOptions& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Loads waveform files as the memory wave window does.");
    parser.addPositionalArgument("files", "The .wfm file (several with --csv-dir).", "FILE.wfm...");
    parser.addOption({"json", "Write the loaded slot as JSON.", "file"});
    parser.addOption({"csv", "Save the samples to CSV as the window does.", "file"});
    parser.addOption({"picture", "Draw the view as loaded (.png or .bmp).", "file"});
    parser.addOption({"csv-dir", "Convert every file given to DIR/NAME.csv, in parallel.", "dir"});
    AddLanguageOption(parser);
    ProcessSubcommand(parser, arguments, "wfm",
                      "0  every file was loaded and written\n1  an output could not be written\n2  a usage "
                      "error\n3  a file was refused");
    if (!TakeLanguageOption(parser, options.language)) return false;
    options.files = parser.positionalArguments();
    options.json = parser.value("json");
    options.csv = parser.value("csv");
    options.picture = parser.value("picture");
    options.csvDir = parser.value("csv-dir");
    const bool batch = !options.csvDir.isEmpty();
    if (options.files.isEmpty() || (!batch && options.files.size() > 1) ||
        (batch && !(options.json + options.csv + options.picture).isEmpty())) {
        std::fputs("wfm: one FILE.wfm with --json, --csv, --picture; or files with --csv-dir DIR alone\n",
                   stderr);
        return false;
    }
    return true;
}

template <typename T> void appendNumber(QByteArray& out, T value)
{
    if (!std::isfinite(value)) {
        out += "null";
        return;
    }
    char buf[64];
    const auto res = std::to_chars(buf, buf + sizeof buf, value);
    out.append(buf, res.ptr - buf);
}

struct JsonObject {
    QByteArray& out;
    bool first = true;
    QByteArray& key(const char* name)
    {
        out += first ? "" : ",";
        first = false;
        return out += QByteArray("\"") + name + "\":";
    }
    template <typename T> void number(const char* name, T value) { appendNumber(key(name), value); }
    void flag(const char* name, bool value) { key(name) += value ? "true" : "false"; }
    void text(const char* name, const QString& value)
    {
        const QByteArray quoted =
            QByteArray(QString(value).replace('\\', "\\\\").replace('"', "\\\"").toUtf8());
        key(name) += "\"" + quoted + "\"";
    }
};

void appendChannel(QByteArray& out, const MemoryWaveSlot& s, int n)
{
    out += "{";
    JsonObject o{out};
    o.flag("ChanEnabled", s.ChanEnabled[size_t(n)]);
    o.flag("ChanPeakState", s.ChanPeakState[size_t(n)]);
    o.number("ChanVoltDiv", s.ChanVoltDiv[size_t(n)]);
    o.number("ChanVoltDivMeasured", s.ChanVoltDivMeasured[size_t(n)]);
    o.number("ChanOffset", s.ChanOffset[size_t(n)]);
    o.number("ChanShiftMeasured", int(s.ChanShiftMeasured[size_t(n)]));
    o.key("Samples") += "[";
    const int count = s.sampleCount(n);
    for (int i = 0; i < count; ++i) {
        if (i) out += ',';
        appendNumber(out, int(s.Samples[size_t(n)][size_t(i)]));
    }
    out += "]}";
}

QByteArray slotJson(const MemoryWaveSlot& s, const WfmLoadResult& result, int bandwidthCode)
{
    QByteArray out = "{";
    JsonObject o{out};
    o.flag("accepted", result.accepted);
    o.text("message", result.message);
    o.number("ModelBandwidthCode", bandwidthCode);
    o.flag("HasData", s.HasData);
    o.text("TriggerMode", s.TriggerMode);
    o.flag("IsAlternation", s.IsAlternation);
    o.flag("ModeYT", s.ModeYT);
    o.flag("ModeXY", s.ModeXY);
    o.flag("ModeRoll", s.ModeRoll);
    o.number("RollPosition", s.RollPosition);
    o.number("SampleCount", s.SampleCount);
    o.number("TimeDiv", s.TimeDiv);
    o.number("Delay", s.Delay);
    o.number("SampleRate", s.SampleRate);
    o.number("StartTime", s.StartTime);
    o.number("ExtraTime", s.ExtraTime);
    o.number("SampleCountA", s.SampleCountA);
    o.number("TimeDivA", s.TimeDivA);
    o.number("DelayA", s.DelayA);
    o.number("SampleRateA", s.SampleRateA);
    o.number("StartTimeA", s.StartTimeA);
    o.number("SampleCountB", s.SampleCountB);
    o.number("TimeDivB", s.TimeDivB);
    o.number("DelayB", s.DelayB);
    o.number("SampleRateB", s.SampleRateB);
    o.number("StartTimeB", s.StartTimeB);
    o.number("TriggerSourceA", int(s.TriggerSourceA));
    o.number("TriggerSourceB", int(s.TriggerSourceB));
    o.key("channels") += "[";
    for (int n = 0; n < 4; ++n) {
        if (n) out += ',';
        appendChannel(out, s, n);
    }
    out += "]}\n";
    return out;
}

bool saveBytes(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) return true;
    std::fprintf(stderr, "wfm: can't write %s: %s\n", qPrintable(path), qPrintable(file.errorString()));
    return false;
}

// One file into a slot; a refused file's message goes to stderr.
WfmLoadResult loadFile(const QString& path, MemoryWaveSlot& slot, int& bandwidthCode)
{
    QString error;
    const QByteArray bytes = ReadWfmFile(path, &error);
    if (!error.isEmpty()) return {false, error};
    WfmLoadResult result = LoadMemoryWaveBytes(bytes, slot, bandwidthCode);
    if (result.accepted) slot.FileName = path;
    return result;
}

int runSingle(const WfmOptions& options)
{
    MemoryWaveSlot& slot = MemoryWaveSlots[0];
    ModelBandwidthCode = 0;
    const WfmLoadResult result = loadFile(options.files.first(), slot, ModelBandwidthCode);
    bool written = true;
    if (!options.json.isEmpty())
        written = saveBytes(options.json, slotJson(slot, result, ModelBandwidthCode));
    if (!result.accepted) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(options.files.first()), qPrintable(result.message));
        return Refused;
    }
    if (!options.csv.isEmpty()) {
        if (!MemoryWaveCsvAllowed(slot)) {
            std::fprintf(stderr, "wfm: %s\n", qPrintable(MsgWaveData));
            written = false;
        } else {
            const QString error = WriteMemoryWaveCsv(slot, options.csv);
            if (!error.isEmpty()) std::fprintf(stderr, "wfm: %s\n", qPrintable(error));
            written = written && error.isEmpty();
        }
    }
    if (!options.picture.isEmpty()) {
        ComputeMemoryWindows(slot);
        MemoryWaveScreen screen;
        RefreshMemoryChannels(slot, screen);
        const QString error = WritePictureFile(MemoryWavePicture(1.0, slot, screen), options.picture);
        if (!error.isEmpty()) std::fprintf(stderr, "wfm: %s\n", qPrintable(error));
        written = written && error.isEmpty();
    }
    return written ? Loaded : WriteFailed;
}

int runBatch(const WfmOptions& options)
{
    if (!QDir().mkpath(options.csvDir)) {
        std::fprintf(stderr, "wfm: can't make %s\n", qPrintable(options.csvDir));
        return Usage;
    }
    std::atomic<qsizetype> next{0};
    std::atomic<bool> refused{false}, failed{false};
    std::mutex report; // guards stderr and the progress line
    ProgressLine progress("wfm");
    qsizetype done = 0;
    const auto work = [&] {
        for (qsizetype k = next++; k < options.files.size(); k = next++) {
            const auto finished = qScopeGuard([&] {
                const std::lock_guard lock(report);
                progress.show(int(++done * 100 / options.files.size()));
            });
            const QString& path = options.files.at(k);
            MemoryWaveSlot slot;
            int code = 0;
            const WfmLoadResult result = loadFile(path, slot, code);
            QString problem = result.accepted ? QString() : result.message;
            if (result.accepted && !MemoryWaveCsvAllowed(slot)) problem = MsgWaveData;
            if (!problem.isEmpty()) {
                refused = true;
                const std::lock_guard lock(report);
                progress.interrupt();
                std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(problem));
                continue;
            }
            const QString out = QDir(options.csvDir).filePath(QFileInfo(path).completeBaseName() + ".csv");
            const QString error = WriteMemoryWaveCsv(slot, out);
            if (error.isEmpty()) continue;
            failed = true;
            const std::lock_guard lock(report);
            progress.interrupt();
            std::fprintf(stderr, "wfm: can't write %s: %s\n", qPrintable(out), qPrintable(error));
        }
    };
    const unsigned cores = std::max(1u, std::thread::hardware_concurrency());
    std::vector<std::thread> threads;
    for (unsigned t = 1; t < std::min<unsigned>(cores, unsigned(options.files.size())); ++t)
        threads.emplace_back(work);
    work();
    for (std::thread& thread : threads)
        thread.join();
    return failed ? WriteFailed : refused ? Refused : Loaded;
}

} // namespace

int RunWfmCommand(const QStringList& arguments)
{
    WfmOptions options;
    if (!parseWfmOptions(arguments, options)) return Usage;
    LoadLanguageSetting();
    ApplyLanguage(options.language < 0 ? Language : options.language);
    return options.csvDir.isEmpty() ? runSingle(options) : runBatch(options);
}
