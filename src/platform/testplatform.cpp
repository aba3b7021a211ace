#include "platform/testplatform.h"

#include <QCoreApplication>
#include <QThread>

TestPlatform::TestPlatform() : store_(dir_.filePath("Selvane.ini")), clock_(QDate(2026, 1, 1), QTime(12, 0))
{
}

void TestPlatform::clearRecords()
{
    boxes.clear();
    openRequests.clear();
    saveRequests.clear();
    sleeps.clear();
    doEventsCount = 0;
}

int TestPlatform::msgBox(const QString& text, int style, const QString& title)
{
    boxes.append({text, style, title});
    return boxAnswers.isEmpty() ? msgBoxDefaultAnswer(style) : boxAnswers.takeFirst();
}

QString TestPlatform::openFileName(const FileDialogRequest& request)
{
    openRequests.append(request);
    return openPaths.isEmpty() ? QString() : openPaths.takeFirst();
}

QString TestPlatform::saveFileName(const FileDialogRequest& request)
{
    saveRequests.append(request);
    return savePaths.isEmpty() ? QString() : savePaths.takeFirst();
}

void TestPlatform::sleep(int ms)
{
    sleeps.append(ms);
    clock_ = clock_.addMSecs(ms);
    if (realSleep && ms > 0) QThread::msleep(static_cast<unsigned long>(ms));
}

void TestPlatform::doEvents()
{
    ++doEventsCount;
    if (QCoreApplication::instance()) QCoreApplication::processEvents();
    if (onDoEvents) onDoEvents();
}

ScopedTestPlatform::ScopedTestPlatform()
{
    auto fresh = std::make_unique<TestPlatform>();
    current_ = fresh.get();
    previous_ = installPlatform(std::move(fresh));
}

ScopedTestPlatform::~ScopedTestPlatform()
{
    installPlatform(std::move(previous_));
}
