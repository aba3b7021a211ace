#include "wave/qimagesurface.h"

#include <QFontMetrics>
#include <cmath>

namespace {

// Whole pixels as the classic picture box takes them.
QPointF snap(QPointF p)
{
    return QPointF(std::round(p.x()), std::round(p.y()));
}

Qt::PenStyle penStyle(DashStyle style)
{
    switch (style) {
    case DashStyle::Dash: return Qt::DashLine;
    case DashStyle::Dot: return Qt::DotLine;
    case DashStyle::DashDot: return Qt::DashDotLine;
    case DashStyle::DashDotDot: return Qt::DashDotDotLine;
    default: return Qt::SolidLine;
    }
}

// A small fixed-height font: the legend positions were laid out for one.
QFont legendFont()
{
    QFont font(QStringLiteral("Sans Serif"));
    font.setPixelSize(11);
    return font;
}

} // namespace

QImageSurface::QImageSurface(QSize size)
    : image_(size.expandedTo(QSize(1, 1)), QImage::Format_RGB32), painter_(std::make_unique<QPainter>())
{
    image_.fill(back_);
}

QImageSurface::QImageSurface(const QImage& picture)
    : image_(picture.convertToFormat(QImage::Format_RGB32)), painter_(std::make_unique<QPainter>())
{
}

QImageSurface::~QImageSurface() = default;

QPainter& QImageSurface::painter()
{
    if (!painter_->isActive()) {
        painter_->begin(&image_);
        painter_->setFont(legendFont());
        painter_->setRenderHint(QPainter::Antialiasing, false);
        applyPen();
    }
    return *painter_;
}

void QImageSurface::flush()
{
    if (pendingPixels_.size() > 0) painter().drawPoints(pendingPixels_);
    if (pendingPath_.size() > 1) painter().drawPolyline(pendingPath_);
    pendingPixels_.clear();
    pendingPath_.clear();
}

void QImageSurface::applyPen()
{
    if (painter_->isActive())
        painter_->setPen(QPen(fore_, width_, penStyle(dash_), Qt::SquareCap, Qt::MiterJoin));
}

void QImageSurface::setBackColor(const QColor& color)
{
    flush();
    back_ = color;
}

void QImageSurface::setForeColor(const QColor& color)
{
    flush();
    fore_ = color;
    applyPen();
}

void QImageSurface::clear()
{
    flush();
    painter().fillRect(image_.rect(), back_);
}

void QImageSurface::setLineWidth(int width)
{
    flush();
    width_ = std::max(width, 1);
    applyPen();
}

void QImageSurface::setDashStyle(DashStyle style)
{
    flush();
    dash_ = style;
    applyPen();
}

void QImageSurface::line(QPointF from, QPointF to)
{
    flush();
    pendingPath_ << snap(from) << snap(to);
    current_ = to;
}

void QImageSurface::lineTo(QPointF to)
{
    if (!pendingPixels_.isEmpty()) flush();
    if (pendingPath_.isEmpty()) pendingPath_ << snap(current_);
    pendingPath_ << snap(to);
    current_ = to;
}

void QImageSurface::setPixel(QPointF at)
{
    if (!pendingPath_.isEmpty()) flush();
    pendingPixels_ << snap(at);
    current_ = at;
}

void QImageSurface::text(QPointF at, const QString& text, bool opaque)
{
    flush();
    QPainter& p = painter();
    p.setBackgroundMode(opaque ? Qt::OpaqueMode : Qt::TransparentMode);
    p.setBackground(back_);
    const QPointF origin = snap(at);
    p.drawText(QPointF(origin.x(), origin.y() + p.fontMetrics().ascent()), text);
}

const QImage& QImageSurface::image()
{
    flush();
    // Ending the painter lets a copy of the picture stay as it is while drawing goes on.
    if (painter_->isActive()) painter_->end();
    return image_;
}
