#include "sheet/docpicturewidgets.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace {

constexpr int Side = 32;

// A little screen: dark glass in a grey bezel.
void drawScreen(QPainter& p)
{
    p.setPen(QPen(QColor(90, 90, 90), 1));
    p.setBrush(QColor(20, 24, 28));
    p.drawRoundedRect(QRectF(2.5, 5.5, 27, 21), 2, 2);
}

void drawSine(QPainter& p, const QColor& colour, double phase)
{
    QPainterPath path;
    for (int x = 4; x <= 28; ++x) {
        const double y = 16 + 6 * std::sin((x - 4) * 0.5 + phase);
        if (x == 4)
            path.moveTo(x, y);
        else
            path.lineTo(x, y);
    }
    p.setPen(QPen(colour, 1.6));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
}

void drawTable(QPainter& p, const QColor& header)
{
    p.setPen(QPen(QColor(110, 110, 110), 1));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(3.5, 4.5, 25, 23));
    p.fillRect(QRectF(4, 5, 24, 5), header);
    for (int row = 14; row <= 26; row += 4)
        p.drawLine(QPointF(4, row + 0.5), QPointF(28, row + 0.5));
    p.drawLine(QPointF(13.5, 5), QPointF(13.5, 28));
}

void drawTree(QPainter& p)
{
    p.setPen(QPen(QColor(70, 70, 70), 1.4));
    p.drawLine(QPointF(8, 8), QPointF(8, 25));
    for (int y : {13, 19, 25})
        p.drawLine(QPointF(8, y), QPointF(14, y));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(60, 120, 200));
    p.drawRect(QRectF(4, 4, 9, 7));
    p.setBrush(QColor(240, 190, 60));
    for (int y : {10, 16, 22})
        p.drawRect(QRectF(15, y, 13, 6));
}

void drawKnobs(QPainter& p)
{
    p.setPen(QPen(QColor(80, 80, 80), 1));
    p.setBrush(QColor(210, 210, 215));
    p.drawRoundedRect(QRectF(2.5, 6.5, 27, 19), 3, 3);
    p.setBrush(QColor(70, 70, 75));
    p.drawEllipse(QPointF(10, 16), 5, 5);
    p.drawEllipse(QPointF(22, 16), 5, 5);
    p.setPen(QPen(Qt::white, 1.4));
    p.drawLine(QPointF(10, 16), QPointF(10, 12));
    p.drawLine(QPointF(22, 16), QPointF(25, 13));
}

void drawFilm(QPainter& p)
{
    drawScreen(p);
    drawSine(p, QColor(255, 230, 60), 0);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(230, 60, 60));
    p.drawEllipse(QPointF(25, 9), 2.5, 2.5);
}

void drawStoredFile(QPainter& p)
{
    p.setPen(QPen(QColor(110, 110, 110), 1));
    p.setBrush(Qt::white);
    QPainterPath page;
    page.moveTo(6.5, 3.5);
    page.lineTo(20.5, 3.5);
    page.lineTo(26.5, 9.5);
    page.lineTo(26.5, 28.5);
    page.lineTo(6.5, 28.5);
    page.closeSubpath();
    p.drawPath(page);
    drawSine(p, QColor(40, 120, 220), 1);
}

} // namespace

QPixmap DocChoicePicture(int choice)
{
    QPixmap pixmap(Side, Side);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    switch (choice) {
    case 1: drawTree(p); break;
    case 2: drawKnobs(p); break;
    case 3:
        drawScreen(p);
        drawSine(p, QColor(255, 230, 60), 0);
        break;
    case 4: drawTable(p, QColor(120, 220, 230)); break;
    case 5: drawTable(p, QColor(240, 150, 240)); break;
    case 6: drawFilm(p); break;
    case 7: drawStoredFile(p); break;
    default: break;
    }
    return pixmap;
}
