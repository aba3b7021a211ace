#include "document/programiconwidgets.h"
#include "frame/frmMain.h"
#include "frame/frmStartup.h"
#include "platform/runtimedir.h"
#include "platform/widgetsplatform.h"
#include "text/productinfo.h"

#include <QApplication>
#include <QElapsedTimer>
#include <memory>

int main(int argc, char** argv)
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    SetPrivateRuntimeDir();
    QApplication app(argc, argv);
    QApplication::setApplicationName(ProgramTitle);
    QApplication::setOrganizationName(ProgramTitle);
    QApplication::setWindowIcon(ProgramIcon(Picture::Program));
    installPlatform(std::make_unique<WidgetsPlatform>());

    std::unique_ptr<frmMain> window(Main());
    InstallStartupProbe(window.get(), ParseStartupProbe(QApplication::arguments()), sinceStart);
    return QApplication::exec();
}
