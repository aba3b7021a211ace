#include "wave/frmWavePicture.h"

#include <QMouseEvent>
#include <QPainter>

WavePicture::WavePicture(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void WavePicture::setImage(const QImage& image)
{
    image_ = image;
    update();
}

void WavePicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.drawImage(0, 0, image_);
}

void WavePicture::mousePressEvent(QMouseEvent* event)
{
    Q_EMIT pressed(event->position(), event->buttons());
}

void WavePicture::mouseMoveEvent(QMouseEvent* event)
{
    Q_EMIT moved(event->position(), event->buttons());
}

void WavePicture::mouseReleaseEvent(QMouseEvent* event)
{
    Q_EMIT released(event->position(), event->buttons());
}
