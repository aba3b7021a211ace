// Pictures of the dialogs that need no instrument, made from the real main
// window in either language: Options (its first and IO pages), New Document, the FFT settings, the
// trigger pattern dialog and the help viewer open on the manual. Used by
// tools/help_screenshots.sh (help only: tools/help_screenshots.sh --viewer).
//   selvane-dialogshot OUTDIR english|chinese [help HELP_FOLDER]
// With --palette it turns PNG files into 8-bit palette PNGs in place instead,
// so the help's pictures stay small:
//   selvane-dialogshot --palette FILE.png...
#include "controller/frmPatternDlg.h"
#include "controller/pattern.h"
#include "frame/frmHelp.h"
#include "frame/frmMain.h"
#include "frame/frmOptions.h"
#include "frame/frmStartup.h"
#include "platform/cliplatform.h"
#include "sheet/frmNewDoc.h"
#include "text/language.h"
#include "text/productinfo.h"
#include "wave/frmWaveSetting.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>
#include <cstdio>
#include <memory>

namespace {

bool save(QWidget* widget, const QString& path)
{
    widget->show();
    widget->raise();
    QApplication::processEvents();
    const bool saved = widget->grab().save(path);
    std::fprintf(saved ? stdout : stderr, "%s %s\n", saved ? "saved" : "could not save", qPrintable(path));
    return saved;
}

bool shootDialogs(frmMain* window, const QDir& out)
{
    bool saved = true;
    {
        frmOptions dialog(window);
        saved &= save(&dialog, out.filePath("options.png"));
        // The IO Selection page, for the pages on connecting.
        if (auto* pages = dialog.findChild<QTabWidget*>(QStringLiteral("tbsOptions")))
            pages->setCurrentIndex(2);
        saved &= save(&dialog, out.filePath("options-io.png"));
    }
    {
        frmNewDoc dialog(window);
        saved &= save(&dialog, out.filePath("newdoc.png"));
    }
    {
        frmWaveSetting dialog(window->mdiArea(), window);
        saved &= save(&dialog, out.filePath("fft.png"));
    }
    {
        PatternDlg dialog(window);
        dialog.PresetPattern({CodeHigh, CodeLow, CodeUp, CodeX, CodeX}, false);
        saved &= save(&dialog, out.filePath("pattern.png"));
    }
    return saved;
}

bool shootHelp(frmMain* window, const QDir& out)
{
    if (!OpenHelpFile(Language, window)) return false;
    frmHelp* viewer = HelpWindow();
    viewer->resize(900, 700);
    return save(viewer, out.filePath("help.png"));
}

} // namespace

// Up to 256 colours, without dithering: flat window colours stay flat.
int toPalette(int count, char** files)
{
    int status = 0;
    for (int i = 0; i < count; ++i) {
        const QString path = QString::fromLocal8Bit(files[i]);
        const QImage image(path);
        if (image.isNull() ||
            !image.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither)
                 .save(path, "PNG", 9)) {
            std::fprintf(stderr, "could not convert %s\n", qPrintable(path));
            status = 1;
        }
    }
    return status;
}

int main(int argc, char** argv)
{
    if (argc > 1 && QByteArray(argv[1]) == "--palette") {
        QCoreApplication app(argc, argv);
        return toPalette(argc - 2, argv + 2);
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(ProgramTitle);
    if (argc < 3) {
        std::fprintf(stderr, "usage: selvane-dialogshot OUTDIR english|chinese [help HELP_FOLDER]\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    const bool helpOnly = argc > 4 && QByteArray(argv[3]) == "help";
    if (helpOnly) SetHelpFolder(QString::fromLocal8Bit(argv[4]));
    // Boxes go to stderr and take their default answer: nobody is there to click.
    installPlatform(std::make_unique<CliPlatform>());
    Language = QByteArray(argv[2]) == "chinese" ? LanguageChinese : LanguageEnglish;
    SaveLanguageSetting();

    std::unique_ptr<frmMain> window(Main());
    window->resize(1000, 700);
    int status = 1;
    QTimer::singleShot(300, window.get(), [&] {
        const bool saved = helpOnly ? shootHelp(window.get(), out) : shootDialogs(window.get(), out);
        // The viewer loads its pictures as it lays out; give it a moment.
        QTimer::singleShot(helpOnly ? 300 : 0, window.get(), [&, saved] {
            if (helpOnly) {
                save(HelpWindow(), out.filePath("help.png"));
                // A chapter with its pictures, as the reader sees one.
                QTextBrowser* browser = HelpWindow()->browser();
                browser->setSource(browser->source().resolved(
                    QUrl(IsChinese(Language) ? "manual/zh/wave.html" : "manual/en/wave.html")));
                save(HelpWindow(), out.filePath("help-chapter.png"));
            }
            QApplication::exit(status = saved ? 0 : 1);
        });
    });
    QApplication::exec();
    return status;
}
