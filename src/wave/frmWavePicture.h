#pragma once
// The picture control of a wave window: shows the drawn image at its own size
// and reports the mouse in the image's pixels, so the cursors can be dragged.

#include "wave/cursormouse.h"

#include <QImage>
#include <QWidget>

class QFrame;
class QScrollBar;

class WavePicture : public QWidget {
    Q_OBJECT
  public:
    explicit WavePicture(QWidget* parent = nullptr);

    void setImage(const QImage& image);
    const QImage& image() const { return image_; }

  Q_SIGNALS:
    void pressed(QPointF at, Qt::MouseButtons buttons);
    void moved(QPointF at, Qt::MouseButtons buttons);
    void released(QPointF at, Qt::MouseButtons buttons);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QImage image_;
};

// The picture area that the wave view and the memory view share: a framed back
// pane holding the picture at its size for zoom 1 (the cursors' start values
// are for that size), and the two scroll bars, hidden until the picture
// outgrows the pane. Every control is named for the window's tests.
struct PictureArea {
    QFrame* BackPic = nullptr;
    WavePicture* picture = nullptr;
    QScrollBar* HScroll = nullptr;
    QScrollBar* VScroll = nullptr;
};
PictureArea BuildPictureArea(QWidget* window, const QString& pictureName);

// The mouse pointer over the picture for the cursor handle under it.
Qt::CursorShape PointerCursor(PointerShape shape);
