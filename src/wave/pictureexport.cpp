#include "wave/pictureexport.h"

#include "text/language.h"
#include "platform/platform.h"

#include <QSaveFile>

QString ExportDialogTitle(int language)
{
    return IsChinese(language) ? QStringLiteral("导出文件") : QStringLiteral("Export File");
}

QString ExportDialogFilter(int language)
{
    return (IsChinese(language) ? QStringLiteral("位图文件 ") : QStringLiteral("BitMap Files ")) +
           QStringLiteral("(*.bmp)|*.bmp");
}

QString QtFileFilter(const QString& classicFilter)
{
    const QStringList parts = classicFilter.split(QLatin1Char('|'));
    QStringList entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString& text = parts[i];
        entries.append(text.contains(parts[i + 1]) ? text : text + " (" + parts[i + 1] + ")");
    }
    return entries.join(QStringLiteral(";;"));
}

QString WritePictureFile(const QImage& image, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString();
    const char* format = path.endsWith(QStringLiteral(".png"), Qt::CaseInsensitive) ? "PNG" : "BMP";
    if (!image.save(&file, format)) {
        const QString why = file.errorString();
        file.cancelWriting();
        return why;
    }
    if (!file.commit()) return file.errorString();
    return {};
}

bool ExportPicture(const QImage& image)
{
    FileDialogRequest request;
    request.title = ExportDialogTitle(Language);
    request.filter = QtFileFilter(ExportDialogFilter(Language));
    const QString path = SaveFileDialog(request);
    if (path.isEmpty()) return false;
    const QString failure = WritePictureFile(image, path);
    if (failure.isEmpty()) return true;
    MsgBox(failure, vbCritical);
    return false;
}
