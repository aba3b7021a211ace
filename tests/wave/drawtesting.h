#pragma once
// Shared pieces of the drawing tests: printing of recorded calls, the path of an
// outline, a canvas with an alternate-trigger source pair, and records.

#include "acquire/waverecord.h"
#include "wave/alternation.h"
#include "wave/recordingsurface.h"
#include "wave/wavecanvas.h"

#include <QStringList>
#include <gtest/gtest.h>
#include <ostream>
#include <vector>

inline void PrintTo(const QPointF& p, std::ostream* os)
{
    *os << '(' << p.x() << ", " << p.y() << ')';
}

inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

using Path = std::vector<QPointF>;

// The points a run of Line and LineTo calls passes through: the first line's
// start, then every end.
inline Path PathOf(const std::vector<SurfaceCall>& calls)
{
    Path path;
    for (const SurfaceCall& c : calls) {
        if (c.kind == SurfaceCall::Line && path.empty()) path.push_back(c.from);
        if (c.kind == SurfaceCall::Line || c.kind == SurfaceCall::LineTo) path.push_back(c.to);
    }
    return path;
}

// A closed outline through the points, as DrawOutline records it.
inline Path Closed(Path points)
{
    points.push_back(points.front());
    return points;
}

inline std::vector<SurfaceCall> TextsOf(const RecordingSurface& s)
{
    return s.callsOf(SurfaceCall::Text);
}

// A canvas whose alternate-trigger source pair is the one the text names.
inline WaveCanvas PairCanvas(Surface& surface, double zoom, const char* sourcePair)
{
    WaveCanvas canvas(surface, zoom);
    canvas.PairOrdered = IsChannelPairOrdered(QString::fromLatin1(sourcePair));
    return canvas;
}

// A finished Y-T reading of a full screen (positions 0 to 299) with no channel shown.
inline WaveRecord YtRecord()
{
    WaveRecord r;
    r.HasData = true;
    r.YTMode = true;
    r.ColorMode = true;
    r.Points = 600;
    r.TriggerMode = QStringLiteral("EDGE");
    r.FFTDisplayText = QStringLiteral("OFF");
    r.Parameter.s16ScrStartPos = 0;
    r.Parameter.s16ScrEndPos = 299;
    r.TimeScaleText = QStringLiteral("1.000ms");
    r.TimeOffsetText = QStringLiteral("0.000s");
    return r;
}

// Sample rows that differ at every index, so a test sees which index a point took.
inline WaveArray Ramp(std::size_t size, int modulo = 200)
{
    WaveArray wave(size);
    for (std::size_t i = 0; i < size; ++i)
        wave[i] = static_cast<int32_t>(i % modulo);
    return wave;
}
