#pragma once
// The picture control of a wave window: shows the drawn image at its own size
// and reports the mouse in the image's pixels, so the cursors can be dragged.

#include <QImage>
#include <QWidget>

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
