#include "platform/widgetsplatform.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>

namespace {
QMessageBox::Icon iconOf(int style)
{
    switch (style & 0x70) {
    case vbCritical: return QMessageBox::Critical;
    case vbQuestion: return QMessageBox::Question;
    case vbExclamation: return QMessageBox::Warning;
    case vbInformation: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButton buttonOf(int answer)
{
    switch (answer) {
    case vbCancel: return QMessageBox::Cancel;
    case vbAbort: return QMessageBox::Abort;
    case vbRetry: return QMessageBox::Retry;
    case vbIgnore: return QMessageBox::Ignore;
    case vbYes: return QMessageBox::Yes;
    case vbNo: return QMessageBox::No;
    default: return QMessageBox::Ok;
    }
}
QString startPath(const FileDialogRequest& request)
{
    if (request.fileName.isEmpty()) return request.directory;
    return request.directory.isEmpty() ? request.fileName : request.directory + '/' + request.fileName;
}
} // namespace

int WidgetsPlatform::msgBox(const QString& text, int style, const QString& title)
{
    // A box without a title carries the program's name, as the classic boxes did.
    QMessageBox box(iconOf(style), title.isEmpty() ? QApplication::applicationName() : title, text,
                    QMessageBox::NoButton, QApplication::activeWindow());
    const QList<int> answers = msgBoxButtons(style);
    for (int answer : answers)
        box.addButton(buttonOf(answer));
    box.setDefaultButton(buttonOf(msgBoxDefaultAnswer(style)));
    if (answers.contains(vbCancel)) box.setEscapeButton(buttonOf(vbCancel));
    box.exec();
    for (int answer : answers)
        if (box.clickedButton() == box.button(buttonOf(answer))) return answer;
    return answers.contains(vbCancel) ? int(vbCancel) : answers.first();
}

QString WidgetsPlatform::openFileName(const FileDialogRequest& request)
{
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), request.title, startPath(request),
                                        request.filter);
}

QString WidgetsPlatform::saveFileName(const FileDialogRequest& request)
{
    return QFileDialog::getSaveFileName(QApplication::activeWindow(), request.title, startPath(request),
                                        request.filter);
}

void WidgetsPlatform::sleep(int ms)
{
    if (ms > 0) QThread::msleep(static_cast<unsigned long>(ms));
}

void WidgetsPlatform::doEvents()
{
    QApplication::processEvents();
}
QDateTime WidgetsPlatform::now()
{
    return QDateTime::currentDateTime();
}
