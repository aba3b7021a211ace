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
    painter.fillRect(rect(), Qt::black);
    if (image_.isNull()) return;
    // As large as the control allows, the screen's proportions kept.
    const QSize shown = image_.size().scaled(size(), Qt::KeepAspectRatio);
    QRect target(QPoint(), shown);
    target.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image_);
}
