#include "cli/clihelp.h"
#include "cli/clilink.h"
#include "cli/subcommands.h"

#include "link/timeouttimer.h"
#include "panel/screenpicture.h"
#include "wave/pictureexport.h"

#include <QCommandLineParser>
#include <QSaveFile>
#include <cstdio>

namespace {

// Short pictures are asked for again; past this many tries the link is taken as broken.
constexpr int ScreenTries = 10;

QString writeBytes(const QByteArray& bytes, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) return file.errorString();
    return file.commit() ? QString() : file.errorString();
}

// The bitmap as received, or a PNG of its picture.
QString writeScreen(const QByteArray& bytes, const QString& path)
{
    if (!path.endsWith(QStringLiteral(".png"), Qt::CaseInsensitive)) return writeBytes(bytes, path);
    const QImage image = ScreenImage(bytes);
    return image.isNull() ? QStringLiteral("the picture is not a bitmap") : WritePictureFile(image, path);
}

} // namespace

int RunScreenCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Reads the instrument's screen picture (VISA only) and writes it.");
    AddLinkOptions(parser);
    parser.addOption({"out", "Picture to write: .bmp as received, or .png.", "file"});
    ProcessSubcommand(
        parser, arguments, "screen",
        "0  the picture was written\n1  no whole picture came, or it could not be written\n2  a usage error");
    LinkOptions options;
    if (!TakeLinkOptions(parser, QStringLiteral("screen"), options)) return 2;
    const QString out = parser.value("out");
    if (out.isEmpty()) {
        std::fputs("screen: --out is needed\n", stderr);
        return 2;
    }
    TimeOutTimer ticks;
    QByteArray bytes;
    const bool read = OpenLink(options) && ReadScreenPicture(bytes, ScreenTries);
    CloseLink();
    if (!read) {
        std::fputs("screen: no whole picture came from the instrument\n", stderr);
        return 1;
    }
    const QString failure = writeScreen(bytes, out);
    if (failure.isEmpty()) return 0;
    std::fprintf(stderr, "screen: can't write %s: %s\n", qPrintable(out), qPrintable(failure));
    return 1;
}
