#include "link/firmware.h"

#include "link/devicefacts.h"

QString ExtractFirmwareVersion(const QString& identity)
{
    if (identity.isEmpty()) {
        FirmwareVersion = OldestFirmware;
        return OldestFirmware;
    }
    QString version = identity.mid(identity.lastIndexOf(QLatin1Char(',')) + 1);
    return version.replace(QLatin1String("SP"), QLatin1String("0"));
}

bool IsFirmwareSupported(const QString& version)
{
    const QString shortForm = OldestFirmware.left(8);
    return QString::compare(version, OldestFirmware, Qt::CaseSensitive) >= 0 ||
           QString::compare(version, shortForm, Qt::CaseSensitive) >= 0;
}
