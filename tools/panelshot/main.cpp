// Drives the real main window: Tools > Connect, then Tools > Virtual Panel; saves
// the panel with the live screen, presses VK_V_Inc_0 twice and saves it again,
// and saves the virtual keyboard. Used by tools/panel_screenshot.sh against the
// simulator, in either language.
#include "frame/frmMain.h"
#include "frame/frmStartup.h"
#include "link/linkstate.h"
#include "panel/frmV_Key.h"
#include "panel/frmV_Panel.h"
#include "panel/panelwindows.h"
#include "platform/cliplatform.h"
#include "text/language.h"
#include "text/productinfo.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <memory>

namespace {

bool save(QWidget* window, const QString& path)
{
    const bool saved = window->grab().save(path);
    std::fprintf(saved ? stdout : stderr, "%s %s\n", saved ? "saved" : "could not save", qPrintable(path));
    return saved;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(ProgramTitle);
    if (argc < 3) {
        std::fprintf(stderr, "usage: selvane-panelshot OUT.png english|chinese\n");
        return 2;
    }
    const QString base = QString::fromLocal8Bit(argv[1]).chopped(4);
    installPlatform(std::make_unique<CliPlatform>());
    Language = QByteArray(argv[2]) == "chinese" ? LanguageChinese : LanguageEnglish;
    SaveLanguageSetting();

    std::unique_ptr<frmMain> window(Main());
    window->resize(1280, 800);
    window->show();
    int status = 1;
    QTimer::singleShot(300, window.get(), [&] {
        window->findChild<QAction*>(QStringLiteral("mnuToolsConnect"))->trigger();
        if (!Connected) std::fprintf(stderr, "not connected: the panel shows no screen\n");
        frmV_Key* keyboard = ShowVirtualKeyboard(window.get());
        const bool keys = save(keyboard, base + "-keyboard.png");
        keyboard->close();
        window->findChild<QAction*>(QStringLiteral("mnuToolsVirtualPanel"))->trigger();
        // From here on the panel's screen loop turns the event loop.
        QTimer::singleShot(1500, window.get(), [&, keys] {
            frmV_Panel* panel = ShowVirtualPanel(window.get());
            const bool live = save(panel, base + "-live.png");
            auto* volts = panel->findChild<QAbstractButton*>(QStringLiteral("VK_V_Inc_0"));
            volts->click();
            volts->click();
            QTimer::singleShot(1500, window.get(), [&, keys, live] {
                frmV_Panel* panel = ShowVirtualPanel(window.get());
                status = keys && live && save(panel, base + "-volts.png") ? 0 : 1;
                panel->close();
                QApplication::exit(status);
            });
        });
    });
    QApplication::exec();
    return status;
}
