#pragma once
// Shared pieces of the drawing tests: printing of recorded calls, the path of an
// outline, a canvas with an alternate-trigger source pair, records, and the
// drawings kept whole as text in data/*.calls.

#include "acquire/waverecord.h"
#include "datarows.h"
#include "wave/alternation.h"
#include "wave/recordingsurface.h"
#include "wave/wavecanvas.h"

#include <QFile>
#include <QLocale>
#include <QStringList>
#include <functional>
#include <gtest/gtest.h>
#include <map>
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

// One recorded call as a line of a data/*.calls file: "line x y x y", "to x y",
// "pixel x y", "text x y opaque|clear TEXT", "fore r g b", "back r g b",
// "width n", "dash n", "clear".
inline QString CallLine(const SurfaceCall& c)
{
    const auto n = [](double v) { return QString::number(v, 'g', QLocale::FloatingPointShortest); };
    const auto at = [&](QPointF p) { return n(p.x()) + u' ' + n(p.y()); };
    const auto rgb = [](const QColor& k) {
        return QStringLiteral("%1 %2 %3").arg(k.red()).arg(k.green()).arg(k.blue());
    };
    switch (c.kind) {
    case SurfaceCall::BackColor: return QStringLiteral("back ") + rgb(c.color);
    case SurfaceCall::ForeColor: return QStringLiteral("fore ") + rgb(c.color);
    case SurfaceCall::Clear: return QStringLiteral("clear");
    case SurfaceCall::LineWidth: return QStringLiteral("width %1").arg(c.width);
    case SurfaceCall::Dash: return QStringLiteral("dash %1").arg(int(c.dash));
    case SurfaceCall::Line: return QStringLiteral("line ") + at(c.from) + u' ' + at(c.to);
    case SurfaceCall::LineTo: return QStringLiteral("to ") + at(c.to);
    case SurfaceCall::Pixel: return QStringLiteral("pixel ") + at(c.to);
    case SurfaceCall::Text:
        return QStringLiteral("text ") + at(c.to) + QLatin1String(c.opaque ? " opaque " : " clear ") + c.text;
    }
    return {};
}

// The rows of data/traces.txt of one kind, each checked for its field count.
inline std::vector<QStringList> TraceRows(const char* kind, qsizetype fields)
{
    std::vector<QStringList> rows;
    for (const QStringList& f : DataRows("wave/data/traces.txt"))
        if (f[0] == QLatin1String(kind)) rows.push_back(f);
    EXPECT_FALSE(rows.empty()) << kind;
    for (const QStringList& f : rows)
        EXPECT_EQ(f.size(), fields) << f.join(u' ').toStdString();
    return rows;
}

using Drawings = std::map<std::string, std::function<void(RecordingSurface&)>>;

// Every drawing against its section of data/<file>.calls: "= name" opens a
// section, one call a line follows. SELVANE_WRITE_DRAWINGS=1 writes the file
// from the drawings instead, for a reviewed change of the pictures.
inline void ExpectDrawings(const char* file, const Drawings& drawings)
{
    const QString path = QStringLiteral(SELVANE_TEST_DATA "/wave/data/") + QLatin1String(file) + ".calls";
    std::map<std::string, QStringList> recorded;
    for (const auto& [name, draw] : drawings) {
        RecordingSurface s;
        draw(s);
        for (const SurfaceCall& c : s.calls())
            recorded[name] << CallLine(c);
    }
    QFile data(path);
    if (qEnvironmentVariableIsSet("SELVANE_WRITE_DRAWINGS")) {
        ASSERT_TRUE(data.open(QIODevice::WriteOnly | QIODevice::Text));
        for (const auto& [name, lines] : recorded)
            data.write(("= " + QString::fromStdString(name) + u'\n' + lines.join(u'\n') + u'\n').toUtf8());
        return;
    }
    ASSERT_TRUE(data.open(QIODevice::ReadOnly | QIODevice::Text)) << path.toStdString();
    std::map<std::string, QStringList> expected;
    QStringList* section = nullptr;
    for (const QString& line : QString::fromUtf8(data.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(QLatin1String("= ")))
            section = &expected[line.mid(2).toStdString()];
        else if (section)
            *section << line;
    }
    EXPECT_EQ(expected.size(), drawings.size()) << "a section without its drawing, or the reverse";
    for (const auto& [name, lines] : recorded) {
        SCOPED_TRACE(name);
        const QStringList& want = expected[name];
        for (qsizetype i = 0; i < std::max(want.size(), lines.size()); ++i)
            ASSERT_EQ(lines.value(i), want.value(i)) << "call " << i;
    }
}
