// Drives the real main window: Tools > Connect, Download in the controller pane,
// Expand All; then saves a picture of the main window. Used by
// tools/ctrl_screenshot.sh against the simulator, in either language.
#include "controller/ctrltree.h"
#include "controller/frmCtrlList.h"
#include "frame/frmMain.h"
#include "frame/frmStartup.h"
#include "link/linkstate.h"
#include "platform/cliplatform.h"
#include "text/language.h"
#include "text/productinfo.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <cstdio>
#include <memory>

namespace {

// Opens the editor on a node and saves a picture of the dialog it shows, then closes it.
void shootEditor(frmCtrlList* list, const QString& nodePath, const QString& out)
{
    QTimer::singleShot(400, list, [out] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog) {
            std::fprintf(stderr, "no dialog for %s\n", qPrintable(out));
            return;
        }
        std::printf("%s %s\n", dialog->grab().save(out) ? "saved" : "could not save", qPrintable(out));
        dialog->close();
    });
    list->PraseCtrlList(ProductModel + QLatin1Char('\\') + nodePath);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(ProgramTitle);
    if (argc < 3) {
        std::fprintf(stderr, "usage: selvane-ctrlshot OUT.png english|chinese\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    // Boxes go to stderr and take their default answer: nobody is there to click.
    installPlatform(std::make_unique<CliPlatform>());
    Language = QByteArray(argv[2]) == "chinese" ? LanguageChinese : LanguageEnglish;
    SaveLanguageSetting();

    std::unique_ptr<frmMain> window(Main());
    window->resize(1280, 800);
    int status = 1;
    QTimer::singleShot(300, window.get(), [&] {
        if (auto* connect = window->findChild<QAction*>(QStringLiteral("mnuToolsConnect")))
            connect->trigger();
        if (!Connected) std::fprintf(stderr, "not connected: the tree shows the New defaults\n");
        frmCtrlList* list = window->ctrlList();
        list->findChild<QPushButton*>(QStringLiteral("cmdDownload"))->click();
        list->mnuExpand_Click();
        // A wide, tall pane, scrolled to the trigger settings.
        auto* data = window->findChild<QDockWidget*>(QStringLiteral("DataSheet"));
        auto* pane = window->findChild<QDockWidget*>(QStringLiteral("Controller"));
        window->resizeDocks({pane}, {420}, Qt::Horizontal);
        window->resizeDocks({data, pane}, {60, 700}, Qt::Vertical);
        list->tree()->scrollToItem(list->node(0, GroupTimeBase), QAbstractItemView::PositionAtTop);
        if (argc > 3 && QByteArray(argv[3]) == "editor") {
            const bool chinese = Language == LanguageChinese;
            const QString stem = path.chopped(4);
            shootEditor(list,
                        chinese ? QStringLiteral("触发系统\\触发方式") : QStringLiteral("Trigger\\Mode"),
                        stem + "-list.png");
            shootEditor(
                list, QStringLiteral("CH1\\") + (chinese ? QStringLiteral("偏移") : QStringLiteral("Offset")),
                stem + "-number.png");
            shootEditor(list,
                        QStringLiteral("CH1\\") +
                            (chinese ? QStringLiteral("档位") : QStringLiteral("Volt/Div")),
                        stem + "-adjust.png");
        }
        QTimer::singleShot(500, window.get(), [&] {
            const bool saved = window->grab().save(path);
            std::fprintf(saved ? stdout : stderr, "%s %s\n", saved ? "saved" : "could not save",
                         qPrintable(path));
            status = saved ? 0 : 1;
            QApplication::exit(status);
        });
    });
    QApplication::exec();
    return status;
}
