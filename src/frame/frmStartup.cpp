#include "frame/frmStartup.h"

#include "frame/frmMain.h"
#include "frame/frmSplash.h"
#include "link/frmDlgResource.h"
#include "text/language.h"
#include "text/messages.h"

#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <memory>

namespace {

// Long enough for the one-shot start timer to have shown both panes.
constexpr int ScreenshotDelayMs = 300;

// Prints the time to the window's first paint and ends the run.
class FirstPaintProbe : public QObject {
  public:
    FirstPaintProbe(QObject* parent, const QElapsedTimer& sinceStart)
        : QObject(parent), sinceStart_(sinceStart)
    {
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !done_) {
            done_ = true;
            std::printf("main window shown after %lld ms\n", static_cast<long long>(sinceStart_.elapsed()));
            std::fflush(stdout);
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QElapsedTimer sinceStart_;
    bool done_ = false;
};

void saveScreenshot(frmMain* window, const QString& path)
{
    const bool saved = window->grab().save(path);
    std::fprintf(saved ? stdout : stderr, "%s %s\n", saved ? "saved" : "could not save", qPrintable(path));
    QCoreApplication::exit(saved ? 0 : 1);
}

} // namespace

frmMain* Main()
{
    LoadLanguageSetting();
    LoadMessages();
    InstallDlgResourceChooser();
    auto splash = std::make_unique<frmSplash>();
    splash->ShowNow();
    QCoreApplication::processEvents();
    auto* window = new frmMain;
    window->Form_Load();
    splash.reset();
    window->show();
    return window;
}

StartupProbe ParseStartupProbe(const QStringList& arguments)
{
    StartupProbe probe;
    probe.quitWhenShown = arguments.contains(QStringLiteral("--quit-when-shown"));
    const qsizetype at = arguments.indexOf(QStringLiteral("--screenshot"));
    if (at >= 0 && at + 1 < arguments.size()) probe.screenshotPath = arguments.at(at + 1);
    return probe;
}

void InstallStartupProbe(frmMain* window, const StartupProbe& probe, const QElapsedTimer& sinceStart)
{
    if (!probe.screenshotPath.isEmpty()) {
        const QString path = probe.screenshotPath;
        QTimer::singleShot(ScreenshotDelayMs, window, [window, path] { saveScreenshot(window, path); });
    } else if (probe.quitWhenShown) {
        window->installEventFilter(new FirstPaintProbe(window, sinceStart));
    }
}
