#include "frame/helpfile.h"

#include "text/language.h"
#include "platform/platform.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

namespace {

// The reason a file can't be read, or an empty text when it can.
QString readFailure(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) return QString();
    return file.errorString() + QStringLiteral(": ") + path;
}

} // namespace

bool OpenHelpFile(int language)
{
    const QString path = HelpFilePath(language);
    if (const QString failure = readFailure(path); !failure.isEmpty()) {
        MsgBox(failure, vbExclamation);
        return false;
    }
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(path))) return true;
    MsgBox(QStringLiteral("No viewer could open ") + path, vbExclamation);
    return false;
}
