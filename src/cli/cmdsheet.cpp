#include "cli/clihelp.h"
#include "cli/clilanguage.h"
#include "cli/subcommands.h"

#include "acquire/waverecord.h"
#include "analysis/datarecord.h"
#include "analysis/measurejudge.h"
#include "analysis/measurerecord.h"
#include "document/sheetstate.h"
#include "sheet/sheetfile.h"
#include "stored/memoryviewdraw.h"
#include "stored/memorywaveslot.h"
#include "stored/memoryzoom.h"
#include "stored/recordplaydraw.h"
#include "stored/recordslot.h"
#include "text/language.h"
#include "wave/pictureexport.h"
#include "wave/qimagesurface.h"
#include "wave/wavepicture.h"

#include <QCommandLineParser>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <cstdio>

namespace {

enum Exit : int { ExitLoaded = 0, ExitWriteFailed = 1, ExitUsage = 2, ExitRefused = 3 };

struct SheetOptions {
    QString file;
    QString json;
    QString resave;
    QString pictures;
    int language = -1;
};

bool parseSheetOptions(const QStringList& arguments, SheetOptions& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Loads a data sheet file and writes what it holds.");
    parser.addPositionalArgument("file", "The data sheet file (.kvs).");
    parser.addOption({"json", "Write the sheet's windows and their main fields as JSON.", "file"});
    parser.addOption({"resave", "Save the loaded sheet again.", "file"});
    parser.addOption({"pictures", "Draw every wave, memory wave and record window into PNGs.", "dir"});
    AddLanguageOption(parser);
    ProcessSubcommand(parser, arguments, "sheet",
                      "0  the sheet was loaded\n1  an output could not be written\n2  a usage error\n3  the "
                      "file was refused or could not be read");
    if (!TakeLanguageOption(parser, options.language)) return false;
    if (parser.positionalArguments().size() != 1) {
        std::fprintf(stderr, "sheet: one data sheet file is needed\n");
        return false;
    }
    options.file = parser.positionalArguments().first();
    options.json = parser.value("json");
    options.resave = parser.value("resave");
    options.pictures = parser.value("pictures");
    return true;
}

QJsonObject windowJson(SheetKind kind, int slot)
{
    const auto at = std::size_t(slot);
    QJsonObject json{{"kind", KindWindowName(kind)},
                     {"title", SheetSlotNames[std::size_t(KindIndex(kind))].at(slot)}};
    switch (kind) {
    case SheetKind::Wave: {
        const WaveRecord& wave = WaveRecords[at];
        json.insert("HasData", wave.HasData);
        json.insert("TriggerMode", wave.TriggerMode);
        json.insert("TimeScaleText", wave.TimeScaleText);
        json.insert("DateText", wave.DateText);
        break;
    }
    case SheetKind::Measure: {
        // Judgements aren't filed: worked out again as the window does on display.
        MeasureRecord& measure = MeasureRecords[at];
        JudgeMeasureRecord(measure, Language);
        json.insert("HasData", measure.HasData);
        json.insert("Legend", measure.Legend);
        QJsonArray values, judgements;
        for (const MeasureItem& item : measure.Items) {
            values.append(item.Value);
            judgements.append(item.Judgement);
        }
        json.insert("Values", values);
        json.insert("Judgements", judgements);
        break;
    }
    case SheetKind::Data:
        json.insert("HasData", DataRecords[at].HasData);
        json.insert("Legend", DataRecords[at].Legend);
        json.insert("Count", DataRecords[at].Count);
        break;
    case SheetKind::Record:
        json.insert("HasData", RecordSlots[at].HasFile);
        json.insert("FileName", RecordSlots[at].FileName);
        json.insert("LastFrame", RecordSlots[at].LastFrame);
        json.insert("PlayState", RecordSlots[at].PlayState);
        break;
    case SheetKind::MemoryWave:
        json.insert("HasData", MemoryWaveSlots[at].HasData);
        json.insert("FileName", MemoryWaveSlots[at].FileName);
        json.insert("SampleCount", MemoryWaveSlots[at].SampleCount);
        json.insert("SampleCountA", MemoryWaveSlots[at].SampleCountA);
        json.insert("SampleCountB", MemoryWaveSlots[at].SampleCountB);
        break;
    }
    return json;
}

QJsonObject sheetJson()
{
    QJsonObject counts;
    QJsonArray windows;
    for (SheetKind kind :
         {SheetKind::Wave, SheetKind::Measure, SheetKind::Data, SheetKind::Record, SheetKind::MemoryWave}) {
        const int count = int(SheetSlotNames[std::size_t(KindIndex(kind))].size());
        counts.insert(KindWindowName(kind), count);
        for (int slot = 0; slot < count; ++slot)
            windows.append(windowJson(kind, slot));
    }
    return QJsonObject{{"name", DataSheetName}, {"counts", counts}, {"windows", windows}};
}

bool writeJson(const QString& path, const QJsonObject& json)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) &&
        file.write(QJsonDocument(json).toJson(QJsonDocument::Indented)) >= 0 && file.commit())
        return true;
    std::fprintf(stderr, "sheet: can't write %s: %s\n", qPrintable(path), qPrintable(file.errorString()));
    return false;
}

QImage windowPicture(SheetKind kind, std::size_t slot)
{
    switch (kind) {
    case SheetKind::Wave: {
        QImageSurface surface(WavePictureSize(1.0));
        DrawWavePicture(surface, WaveRecords[slot], 1.0);
        return surface.image();
    }
    case SheetKind::MemoryWave: {
        MemoryWaveSlot& memory = MemoryWaveSlots[slot];
        ComputeMemoryWindows(memory);
        MemoryWaveScreen screen;
        RefreshMemoryChannels(memory, screen);
        return MemoryWavePicture(1.0, memory, screen);
    }
    case SheetKind::Record: return RecordFrameImage(RecordSlots[slot]);
    default: return {};
    }
}

// wave_1.png, memorywave_1.png, record_1.png: the kind and the window's place from 1.
bool writePictures(const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "sheet: can't make %s\n", qPrintable(folder));
        return false;
    }
    const std::pair<SheetKind, const char*> drawn[] = {
        {SheetKind::Wave, "wave"}, {SheetKind::MemoryWave, "memorywave"}, {SheetKind::Record, "record"}};
    for (const auto& [kind, stem] : drawn)
        for (int slot = 0; slot < int(SheetSlotNames[std::size_t(KindIndex(kind))].size()); ++slot) {
            const QString path =
                QDir(folder).filePath(QStringLiteral("%1_%2.png").arg(QLatin1String(stem)).arg(slot + 1));
            const QString failure = WritePictureFile(windowPicture(kind, std::size_t(slot)), path);
            if (failure.isEmpty()) continue;
            std::fprintf(stderr, "sheet: can't write %s: %s\n", qPrintable(path), qPrintable(failure));
            return false;
        }
    return true;
}

} // namespace

int RunSheetCommand(const QStringList& arguments)
{
    SheetOptions options;
    if (!parseSheetOptions(arguments, options)) return ExitUsage;
    LoadLanguageSetting();
    ApplyLanguage(options.language);
    if (LoadSheet(options.file) != SheetLoadResult::Loaded) return ExitRefused;
    if (!options.json.isEmpty() && !writeJson(options.json, sheetJson())) return ExitWriteFailed;
    if (!options.resave.isEmpty() && !SaveSheet(options.resave)) return ExitWriteFailed;
    if (!options.pictures.isEmpty() && !writePictures(options.pictures)) return ExitWriteFailed;
    return ExitLoaded;
}
