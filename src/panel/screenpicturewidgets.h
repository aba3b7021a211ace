#pragma once
// The picture control of the virtual panel: takes the bitmap file image of the
// instrument's screen from memory and shows it scaled to the control, its proportions kept.

#include <QImage>
#include <QWidget>

class ScreenPictureBox : public QWidget {
  public:
    explicit ScreenPictureBox(QWidget* parent = nullptr);

    // Takes a bitmap file image of `length` bytes and repaints; anything that is
    // not a whole picture leaves the last one shown.
    void AddPic(const char* data, int length);
    const QImage& image() const { return image_; }

    QSize sizeHint() const override { return {480, 360}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QImage image_;
};
