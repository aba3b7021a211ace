// The main of the logic test programs: a QGuiApplication, so images and fonts
// work but no widget can be made.
#include <QGuiApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName("Selvane");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
