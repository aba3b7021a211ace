// Drives the real main window the way a user would: connect, a new data sheet
// with one window of each kind (the wave, measure and data windows refreshed,
// the memory wave and record windows on files the simulator wrote), a download
// in the controller pane; the windows are set side by side at the size they
// opened with, then a picture of the main window is saved. Used by
// tools/mainwindow_screenshot.sh against the simulator, in either language.
#include "controller/ctrlstate.h"
#include "controller/frmCtrlList.h"
#include "frame/frmMain.h"
#include "frame/frmStartup.h"
#include "link/linkstate.h"
#include "platform/cliplatform.h"
#include "platform/runtimedir.h"
#include "shotaction.h"
#include "text/language.h"
#include "text/productinfo.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTimer>
#include <cstdio>
#include <memory>

namespace {

// Rows from the top left, each window at its own size, a new row when the next
// would pass the area's right edge.
void setSideBySide(QMdiArea* area)
{
    QPoint at;
    int rowHeight = 0;
    for (QMdiSubWindow* sub : area->subWindowList(QMdiArea::CreationOrder)) {
        if (at.x() > 0 && at.x() + sub->width() > area->viewport()->width()) at = {0, at.y() + rowHeight};
        if (at.x() == 0) rowHeight = 0;
        sub->move(at);
        at.rx() += sub->width();
        rowHeight = std::max(rowHeight, sub->height());
    }
}

void refreshTableAndWaveWindows(QMdiArea* area)
{
    for (QMdiSubWindow* sub : area->subWindowList(QMdiArea::CreationOrder))
        if (auto* refresh = sub->findChild<QAbstractButton*>(QStringLiteral("cmdRefresh"))) refresh->click();
}

} // namespace

int main(int argc, char** argv)
{
    SetPrivateRuntimeDir();
    QApplication app(argc, argv);
    QApplication::setApplicationName(ProgramTitle);
    if (argc < 6) {
        std::fprintf(stderr,
                     "usage: selvane-mainshot OUT.png english|chinese WIDTHxHEIGHT FILE.wfm FILE.rcd\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    const QList<QByteArray> size = QByteArray(argv[3]).split('x');
    // Boxes go to stderr and take their default answer; the file dialogs answer
    // the memory wave window's, then the record window's.
    auto cli = std::make_unique<CliPlatform>();
    cli->queueOpenPath(QString::fromLocal8Bit(argv[4]));
    cli->queueOpenPath(QString::fromLocal8Bit(argv[5]));
    installPlatform(std::move(cli));
    Language = QByteArray(argv[2]) == "chinese" ? LanguageChinese : LanguageEnglish;
    SaveLanguageSetting();

    std::unique_ptr<frmMain> window(Main());
    window->resize(size.value(0).toInt(), size.value(1).toInt());
    int status = 1;
    QTimer::singleShot(300, window.get(), [&] {
        trigger(window.get(), "mnuToolsConnect");
        if (!Connected) std::fprintf(stderr, "not connected: the picture shows empty windows\n");
        // As a download of the settings tree would find them: the simulator shows CH1 and CH2.
        CtrlData.ChDisplay[2] = QStringLiteral("ON");
        trigger(window.get(), "mnuNewDataSheet");
        for (const char* add :
             {"AddNewWaveform", "AddNewMeasure", "AddNewData", "AddNewMemoryWaveform", "AddNewRecord"})
            trigger(window.get(), add);
        window->ctrlList()->findChild<QPushButton*>(QStringLiteral("cmdDownload"))->click();
        window->ctrlList()->mnuExpand_Click();
        auto* sheet = window->findChild<QDockWidget*>(QStringLiteral("DataSheet"));
        auto* pane = window->findChild<QDockWidget*>(QStringLiteral("Controller"));
        window->resizeDocks({sheet, pane}, {200, 600}, Qt::Vertical);
        setSideBySide(window->mdiArea());
        // The windows' timers tick the channel boxes after the switches first.
        QTimer::singleShot(1200, window.get(), [&] {
            refreshTableAndWaveWindows(window->mdiArea());
            QTimer::singleShot(500, window.get(), [&] {
                const bool saved = window->grab().save(path);
                std::fprintf(saved ? stdout : stderr, "%s %s\n", saved ? "saved" : "could not save",
                             qPrintable(path));
                QApplication::exit(status = saved ? 0 : 1);
            });
        });
    });
    QApplication::exec();
    return status;
}
