#pragma once
// A front-panel knob: the knob itself (pushed by a click) drawn round with its
// grip, the two turns beside it as arrow buttons, and its printed name below.

#include <QAbstractButton>
#include <QWidget>

class QToolButton;

class KnobButton : public QAbstractButton {
  public:
    explicit KnobButton(QWidget* parent = nullptr);
    QSize sizeHint() const override { return {40, 40}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

class KnobWidget : public QWidget {
  public:
    // The three controls take the names given (the key table's control names).
    KnobWidget(const QString& caption, const QString& decName, const QString& pushName,
               const QString& incName, QWidget* parent = nullptr);

    QToolButton* dec = nullptr;
    KnobButton* push = nullptr;
    QToolButton* inc = nullptr;
};
