#include "platform/cliplatform.h"

#include <QCoreApplication>
#include <QThread>
#include <cstdio>

CliPlatform::CliPlatform(const QString& settingsPath) : store_(settingsPath) {}

int CliPlatform::msgBox(const QString& text, int style, const QString& title)
{
    const QString line = title.isEmpty() ? text : title + ": " + text;
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    return msgBoxDefaultAnswer(style);
}

QString CliPlatform::openFileName(const FileDialogRequest&)
{
    return openPaths_.isEmpty() ? QString() : openPaths_.takeFirst();
}

QString CliPlatform::saveFileName(const FileDialogRequest&)
{
    return savePaths_.isEmpty() ? QString() : savePaths_.takeFirst();
}

void CliPlatform::sleep(int ms)
{
    if (ms > 0) QThread::msleep(static_cast<unsigned long>(ms));
}

void CliPlatform::doEvents()
{
    if (QCoreApplication::instance()) QCoreApplication::processEvents();
}

QDateTime CliPlatform::now()
{
    return QDateTime::currentDateTime();
}
