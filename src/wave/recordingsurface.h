#pragma once
// A surface that keeps every call, so a test can assert the exact primitives a
// drawing routine asked for.

#include "wave/surface.h"

#include <vector>

struct SurfaceCall {
    enum Kind { BackColor, ForeColor, Clear, LineWidth, Dash, Line, LineTo, Pixel, Text };
    Kind kind = Clear;
    QPointF from; // Line: its start; LineTo: the current point it starts from
    QPointF to;   // Line, LineTo: the end; Pixel, Text: the position
    QColor color;
    int width = 0;
    DashStyle dash = DashStyle::Solid;
    QString text;
    bool opaque = false;

    bool operator==(const SurfaceCall&) const = default;
};

class RecordingSurface : public Surface {
  public:
    void setBackColor(const QColor& color) override;
    void setForeColor(const QColor& color) override;
    void clear() override;
    void setLineWidth(int width) override;
    void setDashStyle(DashStyle style) override;
    void line(QPointF from, QPointF to) override;
    void lineTo(QPointF to) override;
    void setPixel(QPointF at) override;
    void text(QPointF at, const QString& text, bool opaque) override;

    const std::vector<SurfaceCall>& calls() const { return calls_; }
    // The calls of one kind, in order.
    std::vector<SurfaceCall> callsOf(SurfaceCall::Kind kind) const;
    // The colour in force at call `index` (the last ForeColor before it), black if none.
    QColor foreColorAt(std::size_t index) const;
    void reset();

  private:
    SurfaceCall& add(SurfaceCall::Kind kind);

    std::vector<SurfaceCall> calls_;
    QPointF current_;
};
