#pragma once
// What the trace drawing needs from a picture: colours, a pen, lines, single
// pixels and text. Coordinates are pixels of the picture as doubles; a surface
// turns them into whole pixels its own way, so the drawing code keeps the exact
// arithmetic and tests can see it.

#include <QColor>
#include <QPointF>
#include <QString>

enum class DashStyle { Solid, Dash, Dot, DashDot, DashDotDot };

class Surface {
  public:
    virtual ~Surface() = default;

    virtual void setBackColor(const QColor& color) = 0;
    virtual void setForeColor(const QColor& color) = 0;
    // Fills the whole picture with the back colour.
    virtual void clear() = 0;
    virtual void setLineWidth(int width) = 0;
    virtual void setDashStyle(DashStyle style) = 0;
    // Both line calls leave the current point at the end of the line; so does setPixel.
    virtual void line(QPointF from, QPointF to) = 0;
    virtual void lineTo(QPointF to) = 0;
    virtual void setPixel(QPointF at) = 0;
    // Text in the fore colour with its top left corner at `at`; opaque text first
    // fills its cell with the back colour.
    virtual void text(QPointF at, const QString& text, bool opaque) = 0;
};
