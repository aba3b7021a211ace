#include "panel/screenpicturewidgets.h"

#include "panel/screenpicture.h"

#include <QPainter>

ScreenPictureBox::ScreenPictureBox(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(320, 240);
}

void ScreenPictureBox::AddPic(const char* data, int length)
{
    const QImage picture = ScreenImage(QByteArray::fromRawData(data, length));
    if (picture.isNull()) return;
    image_ = picture;
    repaint();
}

void ScreenPictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (image_.isNull()) return painter.fillRect(rect(), Qt::black);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), image_);
}
