// Drives the real main window the way a user would: a new data sheet, two wave
// windows (or, with "analysis", a measure window with limits set and a data
// window), Tools > Connect, Refresh in each, windows tiled; then saves a picture
// of the main window. Used by tools/wave_screenshot.sh against the simulator.
// With "memory FILE.wfm": a memory wave window opened on the file, cursors on
// (tools/memory_screenshot.sh).
// With "record FILE.rcd" it opens one record window on the file instead and
// takes the picture mid-play (tools/record_screenshot.sh).
// SHEETSHOT_LANGUAGE=chinese takes the pictures in Chinese.
#include "analysis/frmPassFailed.h"
#include "analysis/measurerecord.h"
#include "controller/ctrlstate.h"
#include "frame/frmMain.h"
#include "frame/frmStartup.h"
#include "link/linkstate.h"
#include "platform/cliplatform.h"
#include "shotaction.h"
#include "text/language.h"
#include "text/productinfo.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>
#include <cstdio>
#include <memory>

namespace {

void refreshEveryWaveWindow(frmMain* window)
{
    const auto subWindows = window->mdiArea()->subWindowList();
    for (QMdiSubWindow* sub : subWindows)
        if (auto* refresh = sub->findChild<QAbstractButton*>(QStringLiteral("cmdRefresh"))) refresh->click();
}

// Limits a user would set in the Pass & Fail dialog: Vpp passes, Vmax lies
// under its range, the frequency over its.
void setMeasureLimits()
{
    MeasureRecords[0].Items[0] = {{}, true, 10.0, 0.0, {}};
    MeasureRecords[0].Items[1] = {{}, true, 5.0, 2.0, {}};
    MeasureRecords[0].Items[7] = {{}, true, 500.0, 100.0, {}};
}

void addWindows(frmMain* window, bool analysis)
{
    trigger(window, analysis ? "AddNewMeasure" : "AddNewWaveform");
    trigger(window, analysis ? "AddNewData" : "AddNewWaveform");
    if (analysis) setMeasureLimits();
}

// The limits dialog of the measure window beside the sheet's picture (OUT-limits.png),
// with Vmax selected.
void saveLimitsDialog(frmMain* window, QString path)
{
    frmPassFailed dialog(0, QStringLiteral("Measure0"), window);
    dialog.Timer1_Timer();
    if (auto* type = dialog.findChild<QComboBox*>(QStringLiteral("MTypeCombo"))) type->setCurrentIndex(1);
    dialog.show();
    QApplication::processEvents();
    path.replace(QStringLiteral(".png"), QStringLiteral("-limits.png"));
    dialog.grab().save(path);
}

void showMemoryWave(frmMain* window, const QString& file)
{
    trigger(window, "mnuNewDataSheet");
    static_cast<CliPlatform&>(platform()).queueOpenPath(file);
    trigger(window, "AddNewMemoryWaveform");
    const auto subWindows = window->mdiArea()->subWindowList();
    for (QMdiSubWindow* sub : subWindows) {
        for (const char* box : {"ChkCursorX", "ChkCursorY"})
            if (auto* check = sub->findChild<QAbstractButton*>(QString::fromLatin1(box))) check->click();
        sub->resize(760, 560);
    }
}

// A record window on the file, playing: the picture is taken a few frames in.
void playRecord(frmMain* window)
{
    trigger(window, "mnuNewDataSheet");
    trigger(window, "AddNewRecord");
    for (QMdiSubWindow* sub : window->mdiArea()->subWindowList())
        if (auto* play = sub->findChild<QAbstractButton*>(QStringLiteral("AresBtnPlay_0"))) play->click();
}

int finish(frmMain* window, const QString& path)
{
    const bool saved = window->grab().save(path);
    std::fprintf(saved ? stdout : stderr, "%s %s\n", saved ? "saved" : "could not save", qPrintable(path));
    return saved ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(ProgramTitle);
    if (argc < 2) {
        std::fprintf(stderr, "usage: selvane-sheetshot OUT.png [wave|analysis|memory FILE.wfm]\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    const bool analysis = argc > 2 && QByteArray(argv[2]) == "analysis";
    const QString memoryFile =
        argc > 3 && QByteArray(argv[2]) == "memory" ? QString::fromLocal8Bit(argv[3]) : QString();
    const bool record = argc > 3 && QByteArray(argv[2]) == "record";
    // Boxes go to stderr and take their default answer: nobody is there to click.
    auto cli = std::make_unique<CliPlatform>();
    if (record) cli->queueOpenPath(QString::fromLocal8Bit(argv[3]));
    installPlatform(std::move(cli));
    if (qgetenv("SHEETSHOT_LANGUAGE") == "chinese") {
        Language = LanguageChinese;
        SaveLanguageSetting();
    }

    std::unique_ptr<frmMain> window(Main());
    window->resize(1200, 760);
    int status = 1;
    if (!memoryFile.isEmpty() || record) {
        QTimer::singleShot(300, window.get(), [&] {
            if (record)
                playRecord(window.get());
            else
                showMemoryWave(window.get(), memoryFile);
            QTimer::singleShot(record ? 700 : 500, window.get(),
                               [&] { QApplication::exit(status = finish(window.get(), path)); });
        });
        QApplication::exec();
        return status;
    }
    QTimer::singleShot(300, window.get(), [&, analysis] {
        trigger(window.get(), "mnuNewDataSheet");
        addWindows(window.get(), analysis);
        trigger(window.get(), "mnuToolsConnect");
        if (!Connected) std::fprintf(stderr, "not connected: the picture shows empty windows\n");
        // As a download of the settings tree would find them: the simulator shows CH1 and CH2.
        CtrlData.ChDisplay[2] = QStringLiteral("ON");
        // Side by side, each window has the whole height for its control column.
        trigger(window.get(), "mnuWindowTileVertical");
        // The windows' timers tick the channel boxes after the switches first.
        QTimer::singleShot(1200, window.get(), [&, analysis] {
            refreshEveryWaveWindow(window.get());
            QTimer::singleShot(300, window.get(), [&, analysis] {
                status = finish(window.get(), path);
                if (analysis) saveLimitsDialog(window.get(), path);
                QApplication::exit(status);
            });
        });
    });
    QApplication::exec();
    return status;
}
