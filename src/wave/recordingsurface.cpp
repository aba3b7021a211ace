#include "wave/recordingsurface.h"

#include <algorithm>

SurfaceCall& RecordingSurface::add(SurfaceCall::Kind kind)
{
    calls_.emplace_back();
    calls_.back().kind = kind;
    return calls_.back();
}

void RecordingSurface::setBackColor(const QColor& color)
{
    add(SurfaceCall::BackColor).color = color;
}

void RecordingSurface::setForeColor(const QColor& color)
{
    add(SurfaceCall::ForeColor).color = color;
}

void RecordingSurface::clear()
{
    add(SurfaceCall::Clear);
}

void RecordingSurface::setLineWidth(int width)
{
    add(SurfaceCall::LineWidth).width = width;
}

void RecordingSurface::setDashStyle(DashStyle style)
{
    add(SurfaceCall::Dash).dash = style;
}

void RecordingSurface::line(QPointF from, QPointF to)
{
    SurfaceCall& call = add(SurfaceCall::Line);
    call.from = from;
    call.to = to;
    current_ = to;
}

void RecordingSurface::lineTo(QPointF to)
{
    SurfaceCall& call = add(SurfaceCall::LineTo);
    call.from = current_;
    call.to = to;
    current_ = to;
}

void RecordingSurface::setPixel(QPointF at)
{
    add(SurfaceCall::Pixel).to = at;
    current_ = at;
}

void RecordingSurface::text(QPointF at, const QString& text, bool opaque)
{
    SurfaceCall& call = add(SurfaceCall::Text);
    call.to = at;
    call.text = text;
    call.opaque = opaque;
}

std::vector<SurfaceCall> RecordingSurface::callsOf(SurfaceCall::Kind kind) const
{
    std::vector<SurfaceCall> found;
    for (const SurfaceCall& call : calls_)
        if (call.kind == kind) found.push_back(call);
    return found;
}

QColor RecordingSurface::foreColorAt(std::size_t index) const
{
    for (std::size_t i = std::min(index, calls_.size()); i-- > 0;)
        if (calls_[i].kind == SurfaceCall::ForeColor) return calls_[i].color;
    return Qt::black;
}

void RecordingSurface::reset()
{
    calls_.clear();
    current_ = QPointF();
}
