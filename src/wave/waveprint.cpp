#include "wave/waveprint.h"

#include "platform/platform.h"
#include "wave/pictureexport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QPainter>
#include <QStandardPaths>

namespace {

const QString PrintImageName = QStringLiteral("$Print.bmp");

QRectF toDots(const QRectF& inches, double dotsPerInch)
{
    return {inches.x() * dotsPerInch, inches.y() * dotsPerInch, inches.width() * dotsPerInch,
            inches.height() * dotsPerInch};
}

void paintText(QPainter& painter, const QRectF& place, const QString& text, double points, bool bold)
{
    QFont font = painter.font();
    font.setPointSizeF(points);
    font.setBold(bold);
    painter.setFont(font);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

} // namespace

void PaintPicturePage(QPainter& painter, double dotsPerInch, const PicturePage& page,
                      const PicturePageLayout& layout)
{
    painter.save();
    painter.setPen(Qt::black);
    paintText(painter, toDots(layout.title, dotsPerInch), page.title, layout.titlePoints, true);
    paintText(painter, toDots(layout.legend, dotsPerInch), page.legend, layout.legendPoints, false);
    if (!page.image.isNull()) painter.drawImage(toDots(layout.image, dotsPerInch), page.image);
    painter.restore();
}

QString PrintImagePath()
{
    const QString programDir = QCoreApplication::applicationDirPath();
    if (QFileInfo(programDir).isWritable()) return QDir(programDir).filePath(PrintImageName);
    const QString dataDir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(dataDir);
    return QDir(dataDir).filePath(PrintImageName);
}

bool SavePrintImage(const QImage& image)
{
    const QString failure = WritePictureFile(image, PrintImagePath());
    if (failure.isEmpty()) return true;
    MsgBox(failure, vbCritical);
    return false;
}
