#include "platform/widgetsplatform.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("Selvane");
    QApplication::setOrganizationName("Selvane");
    installPlatform(std::make_unique<WidgetsPlatform>());

    QMainWindow window;
    window.setObjectName("frmMain");
    window.setWindowTitle("Selvane");
    window.resize(900, 650);
    window.show();
    return app.exec();
}
