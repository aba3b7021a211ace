#include "wave/frmWavePicture.h"

#include "wave/wavelayout.h"

#include <QFrame>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

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

PictureArea BuildPictureArea(QWidget* window, const QString& pictureName)
{
    PictureArea area;
    area.BackPic = new QFrame(window);
    area.BackPic->setObjectName(QStringLiteral("BackPic"));
    area.BackPic->setFrameShape(QFrame::Box);
    area.BackPic->setAutoFillBackground(true);
    area.picture = new WavePicture(area.BackPic);
    area.picture->setObjectName(pictureName);
    area.picture->resize(PictureSizeAt(1.0));
    area.HScroll = new QScrollBar(Qt::Horizontal, window);
    area.HScroll->setObjectName(QStringLiteral("HScroll"));
    area.VScroll = new QScrollBar(Qt::Vertical, window);
    area.VScroll->setObjectName(QStringLiteral("VScroll"));
    for (QScrollBar* bar : {area.HScroll, area.VScroll}) {
        bar->setRange(0, 100);
        bar->setPageStep(10);
        bar->hide();
    }
    return area;
}

Qt::CursorShape PointerCursor(PointerShape shape)
{
    switch (shape) {
    case PointerShape::EastWest: return Qt::SizeHorCursor;
    case PointerShape::NorthSouth: return Qt::SizeVerCursor;
    default: return Qt::ArrowCursor;
    }
}
