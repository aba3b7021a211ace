#pragma once
// The surface of the wave picture: QPainter on a QImage. Runs of pixels and of
// joined lines are gathered and painted in one call each, which keeps a full
// redraw cheap at large zooms.

#include "wave/surface.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <memory>

class QImageSurface : public Surface {
  public:
    explicit QImageSurface(QSize size);
    // Starts from an existing picture instead of a blank one (the cursor layer).
    explicit QImageSurface(const QImage& picture);
    ~QImageSurface() override;

    void setBackColor(const QColor& color) override;
    void setForeColor(const QColor& color) override;
    void clear() override;
    void setLineWidth(int width) override;
    void setDashStyle(DashStyle style) override;
    void line(QPointF from, QPointF to) override;
    void lineTo(QPointF to) override;
    void setPixel(QPointF at) override;
    void text(QPointF at, const QString& text, bool opaque) override;

    // The picture with everything drawn so far; a copy of it keeps what it shows.
    const QImage& image();

  private:
    QPainter& painter(); // begins painting on first use after image()
    void flush();
    void applyPen();

    QImage image_;
    std::unique_ptr<QPainter> painter_;
    QColor back_ = Qt::black;
    QColor fore_ = Qt::white;
    int width_ = 1;
    DashStyle dash_ = DashStyle::Solid;
    QPointF current_;
    QPolygonF pendingPixels_;
    QPolygonF pendingPath_; // joined lines: each lineTo adds a point
};
