#include "frame/frmMain.h"
#include "frame/frmStartup.h"
#include "text/productinfo.h"
#include "platform/widgetsplatform.h"

#include <QApplication>
#include <QElapsedTimer>
#include <memory>

int main(int argc, char** argv)
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    QApplication app(argc, argv);
    QApplication::setApplicationName(ProgramTitle);
    QApplication::setOrganizationName(ProgramTitle);
    installPlatform(std::make_unique<WidgetsPlatform>());

    std::unique_ptr<frmMain> window(Main());
    InstallStartupProbe(window.get(), ParseStartupProbe(QApplication::arguments()), sinceStart);
    return QApplication::exec();
}
