#include "panel/knobwidgets.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QtMath>

namespace {

constexpr int GripCount = 24;

QToolButton* turnButton(const QString& name, Qt::ArrowType arrow, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setAutoRaise(false);
    button->setFixedSize(22, 22);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

KnobButton::KnobButton(QWidget* parent) : QAbstractButton(parent)
{
    setCursor(Qt::PointingHandCursor);
    setFixedSize(sizeHint());
    setFocusPolicy(Qt::NoFocus);
}

void KnobButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = QRectF(rect()).center();
    const double outer = std::min(width(), height()) / 2.0 - 1;
    const double grip = outer - 3;
    painter.setPen(QPen(QColor(20, 20, 20), 1));
    painter.setBrush(QColor(45, 45, 48));
    painter.drawEllipse(centre, outer, outer);
    painter.setPen(QPen(QColor(95, 95, 100), 1.2));
    for (int i = 0; i < GripCount; ++i) {
        const double angle = 2 * M_PI * i / GripCount;
        const QPointF direction(std::cos(angle), std::sin(angle));
        painter.drawLine(centre + direction * (grip - 3), centre + direction * grip);
    }
    QRadialGradient cap(centre - QPointF(3, 3), grip);
    cap.setColorAt(0, isDown() ? QColor(110, 110, 115) : QColor(170, 170, 175));
    cap.setColorAt(1, isDown() ? QColor(60, 60, 64) : QColor(90, 90, 95));
    painter.setPen(Qt::NoPen);
    painter.setBrush(cap);
    const double top = grip - 4;
    painter.drawEllipse(centre, top, top);
    painter.setPen(QPen(QColor(240, 240, 240), 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(centre - QPointF(0, top - 2), centre - QPointF(0, top / 3));
}

KnobWidget::KnobWidget(const QString& caption, const QString& decName, const QString& pushName,
                       const QString& incName, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    dec = turnButton(decName, Qt::LeftArrow, this);
    inc = turnButton(incName, Qt::RightArrow, this);
    push = new KnobButton(this);
    push->setObjectName(pushName);
    push->setToolTip(caption);
    auto* label = new QLabel(caption, this);
    label->setAlignment(Qt::AlignCenter);
    label->setObjectName("knobCaption");
    layout->addWidget(dec, 0, 0, Qt::AlignBottom);
    layout->addWidget(push, 0, 1, Qt::AlignCenter);
    layout->addWidget(inc, 0, 2, Qt::AlignBottom);
    layout->addWidget(label, 1, 0, 1, 3);
}
