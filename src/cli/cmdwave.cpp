#include "cli/clihelp.h"
#include "cli/clilink.h"
#include "cli/subcommands.h"

#include "acquire/operation.h"
#include "acquire/readblocks.h"
#include "acquire/waverecord.h"
#include "link/devicefacts.h"
#include "link/timeouttimer.h"
#include "link/vocabulary.h"
#include "wave/qimagesurface.h"
#include "wave/wavecanvas.h"
#include "wave/wavepicture.h"

#include <QCommandLineParser>
#include <cmath>
#include <cstdio>

namespace {

struct WaveOptions {
    LinkOptions link;
    QList<int> channels; // empty: those the instrument shows
    double zoom = 1;
    bool mono = false;
    bool grid = false;
    QString out;
};

bool takeChannels(const QString& text, QList<int>& channels)
{
    for (const QString& part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool ok = false;
        const int n = part.trimmed().toInt(&ok);
        if (!ok || n < 1 || n > 4) return false;
        channels.append(n);
    }
    return !channels.isEmpty();
}

bool takeZoom(const QString& text, double& zoom)
{
    bool ok = false;
    zoom = text.toDouble(&ok);
    return ok && zoom >= MinZoom && zoom <= MaxZoom;
}

bool parseWaveOptions(const QStringList& arguments, WaveOptions& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Reads one wave window snapshot and writes its picture.");
    AddLinkOptions(parser);
    parser.addOption({"channels", "Channels to read, such as 1,2 (default: those shown).", "list"});
    parser.addOption({"zoom", "Zoom factor of the picture.", "factor", "1.0"});
    parser.addOption({"mono", "Black on white instead of colour on black."});
    parser.addOption({"grid", "Draw the dotted grid."});
    parser.addOption({"out", "Picture to write (.png or .bmp).", "file"});
    ProcessSubcommand(parser, arguments, "wave",
                      "0  the picture was written\n1  no instrument answered, or the picture could not be "
                      "written\n2  a usage error");
    if (!TakeLinkOptions(parser, "wave", options.link)) return false;
    options.mono = parser.isSet("mono");
    options.grid = parser.isSet("grid");
    options.out = parser.value("out");
    const bool channelsOk =
        !parser.isSet("channels") || takeChannels(parser.value("channels"), options.channels);
    if (channelsOk && takeZoom(parser.value("zoom"), options.zoom) && !options.out.isEmpty()) return true;
    std::fputs("wave: --out is needed; --channels takes 1 to 4, --zoom 0.01 to 100\n", stderr);
    return false;
}

void chooseChannels(WaveRecord& record, const QList<int>& channels)
{
    for (int n = 1; n <= 4; ++n) {
        const bool shown =
            channels.isEmpty()
                ? AskNormalised(Vocab::Query({Vocab::Piece::Channel[n - 1], Vocab::Piece::Display})) ==
                      QLatin1String("1")
                : channels.contains(n);
        record.setShowChannel(n, shown);
    }
}

QImage drawRecord(const WaveRecord& record, double zoom)
{
    QImageSurface surface(WavePictureSize(zoom));
    DrawWavePicture(surface, record, zoom);
    return surface.image();
}

} // namespace

int RunWaveCommand(const QStringList& arguments)
{
    WaveOptions options;
    if (!parseWaveOptions(arguments, options)) return 2;
    TimeOutTimer ticks;
    if (!OpenLink(options.link)) {
        CloseLink();
        return 1;
    }
    constexpr int Slot = 0;
    WaveRecord& record = WaveRecords[Slot];
    record.ColorMode = !options.mono;
    record.GridOn = options.grid;
    chooseChannels(record, options.channels);
    RunReadingFrame({OperationWaveWindow, Slot});
    record.HasData = true;
    const QImage picture = drawRecord(record, options.zoom);
    CloseLink();
    if (picture.save(options.out)) return 0;
    std::fprintf(stderr, "wave: can't write %s\n", qPrintable(options.out));
    return 1;
}
