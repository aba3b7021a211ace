#include "platform/runtimedir.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

// The folder is kept between runs like Qt's own fallback; one we can't trust
// (not ours, not a folder, open to others) is left to Qt.
void SetPrivateRuntimeDir()
{
    if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) return;
    const QByteArray path =
        QFile::encodeName(QDir::tempPath()) + "/selvane-runtime-" + QByteArray::number(::getuid());
    ::mkdir(path.constData(), 0700);
    struct stat info = {};
    if (::lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == ::getuid() &&
        (info.st_mode & 0777) == 0700)
        qputenv("XDG_RUNTIME_DIR", path);
}
