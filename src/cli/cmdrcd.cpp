#include "cli/clihelp.h"
#include "cli/clilanguage.h"
#include "cli/subcommands.h"

#include "stored/rcdfile.h"
#include "stored/recordplay.h"
#include "stored/recordplaydraw.h"
#include "stored/recordslot.h"
#include "text/language.h"
#include "wave/pictureexport.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <cstdio>

namespace {

enum Exit : int { ExitLoaded = 0, ExitWriteFailed = 1, ExitUsage = 2, ExitRefused = 3 };

struct RcdOptions {
    QString file;
    QString json;
    int frame = 0; // 0: none asked
    QString picture;
    QString framesDir;
    int language = -1;
};

bool usage(const char* text)
{
    std::fprintf(stderr, "rcd: %s\n", text);
    return false;
}

bool parseRcdOptions(const QStringList& arguments, RcdOptions& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Loads a record file and writes its fields and frames.");
    parser.addPositionalArgument("file", "The record file (.rcd).");
    parser.addOption({"json", "Write the loaded slot's fields as JSON.", "file"});
    parser.addOption({"frame", "The frame (from 1) that --picture draws.", "k", "1"});
    parser.addOption({"picture", "Write the frame as a picture (.png or .bmp).", "file"});
    parser.addOption({"frames-dir", "Write every frame as a numbered PNG into the folder.", "dir"});
    AddLanguageOption(parser);
    ProcessSubcommand(parser, arguments, "rcd",
                      "0  the file was loaded and written\n1  an output could not be written\n2  a usage "
                      "error\n3  the file was refused");
    if (!TakeLanguageOption(parser, options.language)) return false;
    if (parser.positionalArguments().size() != 1) return usage("one record file is needed");
    options.file = parser.positionalArguments().first();
    options.json = parser.value("json");
    options.picture = parser.value("picture");
    options.framesDir = parser.value("frames-dir");
    if (parser.isSet("frame") && options.picture.isEmpty()) return usage("--frame needs --picture");
    bool ok = false;
    options.frame = parser.value("frame").toInt(&ok);
    if (!ok || options.frame < 1) return usage("--frame takes a frame number from 1");
    return true;
}

QJsonArray samplesOf(const std::vector<int16_t>& samples, qint64 count)
{
    QJsonArray array;
    for (qint64 i = 0; i < count && i < qint64(samples.size()); ++i)
        array.append(samples[size_t(i)]);
    return array;
}

QJsonObject slotJson(const RecordSlot& slot, RecordLoad outcome, const QString& message, qint64 length)
{
    QJsonObject json{{"accepted", outcome == RecordLoad::Loaded},
                     {"message", message},
                     {"L", length},
                     {"SourceName", slot.SourceName},
                     {"HasSecond", slot.HasSecond},
                     {"FirstFrame", slot.FirstFrame},
                     {"LastFrame", slot.LastFrame},
                     {"CurrentFrame", slot.CurrentFrame},
                     {"VoltText", slot.VoltText},
                     {"OffsetText", slot.OffsetText},
                     {"TimeText", slot.TimeText},
                     {"DelayText", slot.DelayText},
                     {"Samples", samplesOf(slot.Samples, length)}};
    if (slot.HasSecond) json.insert("SecondSamples", samplesOf(slot.SecondSamples, length));
    return json;
}

bool writeJson(const QString& path, const QJsonObject& json)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) &&
        file.write(QJsonDocument(json).toJson(QJsonDocument::Compact)) >= 0 && file.commit())
        return true;
    std::fprintf(stderr, "rcd: can't write %s: %s\n", qPrintable(path), qPrintable(file.errorString()));
    return false;
}

bool writeFrame(RecordSlot& slot, int frame, const QString& path)
{
    slot.CurrentFrame = int16_t(frame);
    const QString failure = WritePictureFile(RecordFrameImage(slot), path);
    if (failure.isEmpty()) return true;
    std::fprintf(stderr, "rcd: can't write %s: %s\n", qPrintable(path), qPrintable(failure));
    return false;
}

// frame_0001.png and on, as wide as the last frame's number needs.
bool writeAllFrames(RecordSlot& slot, const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "rcd: can't make %s\n", qPrintable(folder));
        return false;
    }
    const int width = std::max(4, int(QString::number(slot.LastFrame).size()));
    for (int k = 1; k <= slot.LastFrame; ++k)
        if (!writeFrame(
                slot, k,
                QDir(folder).filePath(QStringLiteral("frame_%1.png").arg(k, width, 10, QLatin1Char('0')))))
            return false;
    return true;
}

} // namespace

int RunRcdCommand(const QStringList& arguments)
{
    RcdOptions options;
    if (!parseRcdOptions(arguments, options)) return ExitUsage;
    LoadLanguageSetting();
    ApplyLanguage(options.language);
    QString message;
    const RecordLoad outcome = LoadRecordFile(options.file, 0, &message);
    RecordSlot& slot = RecordSlots[0];
    const qint64 length = QFileInfo(options.file).size() - 128;
    if (!options.json.isEmpty() && !writeJson(options.json, slotJson(slot, outcome, message, length)))
        return ExitWriteFailed;
    if (outcome != RecordLoad::Loaded) return ExitRefused;
    if (!options.picture.isEmpty()) {
        if (options.frame > slot.LastFrame) {
            std::fprintf(stderr, "rcd: the file has %d frames\n", int(slot.LastFrame));
            return ExitUsage;
        }
        if (!writeFrame(slot, options.frame, options.picture)) return ExitWriteFailed;
    }
    if (!options.framesDir.isEmpty() && !writeAllFrames(slot, options.framesDir)) return ExitWriteFailed;
    slot.CurrentFrame = 1;
    return ExitLoaded;
}
