#include "analysis/exportfile.h"

#include "platform/platform.h"
#include "text/language.h"
#include "wave/pictureexport.h"

#include <QSaveFile>

QString ExportTextFilter(int language)
{
    return (IsChinese(language) ? QStringLiteral("微软Excel表格文件 ")
                                : QStringLiteral("Microsoft Excel Files ")) +
           QStringLiteral("(*.xls)|*.xls|Text Files (*.txt)|*.txt|All Files (*.*)|*.*");
}

QString WriteExportFile(const QString& path, const QString& text)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString();
    file.write(text.toUtf8());
    if (!file.commit()) return file.errorString();
    return {};
}

bool ExportTextFile(const QString& text, int language)
{
    const QString path = SaveFileDialog(
        {ExportDialogTitle(language), QtFileFilter(ExportTextFilter(language)), QString(), QString()});
    return !path.isEmpty() && SaveExportFile(path, text);
}

bool SaveExportFile(const QString& path, const QString& text)
{
    const QString error = WriteExportFile(path, text);
    if (error.isEmpty()) return true;
    MsgBox(error, vbCritical);
    return false;
}
