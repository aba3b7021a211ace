#include "document/programiconwidgets.h"

#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QWidget>
#include <array>

namespace {

constexpr std::array<const char*, PictureCount> FileNames{
    "selvane",    "new",         "open",     "save", "connect", "disconnect", "options",
    "controller", "databrowser", "sheet",    "wave", "measure", "data",       "record",
    "memorywave", "fft",         "refresh",  "stop", "export",  "print",      "preview",
    "ctrlgroup",  "ctrlsetting", "keyboard", "panel"};

// Disabled pictures keep their shapes in grey at half strength, like the style's own.
QImage greyed(QImage image)
{
    image = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grey = 96 + qGray(line[x]) / 2;
            line[x] = qRgba(grey, grey, grey, qAlpha(line[x]) / 2);
        }
    }
    return image;
}

QPixmap render(const QString& file, const QSize& size, QIcon::Mode mode)
{
    if (size.isEmpty()) return {};
    const QString key = QStringLiteral("selvane%1:%2x%3:%4")
                            .arg(file)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(mode == QIcon::Disabled ? 'd' : 'n');
    QPixmap cached;
    if (QPixmapCache::find(key, &cached)) return cached;
    QSvgRenderer renderer(file);
    if (!renderer.isValid()) return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        renderer.render(&painter);
    }
    QPixmap pixmap = QPixmap::fromImage(mode == QIcon::Disabled ? greyed(image) : image);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

// Renders the drawing at the size of each request instead of scaling one bitmap.
class SvgPictureEngine : public QIconEngine {
  public:
    explicit SvgPictureEngine(QString file) : file_(std::move(file)), valid_(QSvgRenderer(file_).isValid()) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        QPixmap pixmap = scaledPixmap(rect.size(), mode, state, ratio);
        painter->drawPixmap(rect, pixmap);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        return render(file_, size, mode);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        QPixmap pixmap = render(file_, size * scale, mode);
        pixmap.setDevicePixelRatio(scale);
        return pixmap;
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        return {{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}, {128, 128}, {256, 256}};
    }
    bool isNull() override { return !valid_; }
    QString key() const override { return QStringLiteral("SvgPictureEngine"); }
    QIconEngine* clone() const override { return new SvgPictureEngine(*this); }

  private:
    QString file_;
    bool valid_;
};

} // namespace

QString PictureFile(Picture picture)
{
    const int index = static_cast<int>(picture);
    if (index < 0 || index >= PictureCount) return {};
    return QStringLiteral(":/icons/%1.svg").arg(QLatin1String(FileNames[size_t(index)]));
}

QIcon ProgramIcon(Picture picture)
{
    const QString file = PictureFile(picture);
    return file.isEmpty() ? QIcon() : QIcon(new SvgPictureEngine(file));
}

QPixmap ProgramPixmap(Picture picture, int side)
{
    return render(PictureFile(picture), QSize(side, side), QIcon::Normal);
}

void SetWindowPicture(QWidget* window, Picture picture)
{
    if (window) window->setWindowIcon(ProgramIcon(picture));
}

QPixmap RefreshButtonImage(bool stop, bool down)
{
    QPixmap image = ProgramPixmap(stop ? Picture::Stop : Picture::Refresh, 24);
    if (down && !image.isNull()) {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        painter.fillRect(image.rect(), QColor(0, 0, 0, 80));
    }
    return image;
}
