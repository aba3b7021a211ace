#include "wave/wavezoom.h"

#include "wave/wavecanvas.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

const QStringList& ZoomChoices()
{
    static const QStringList choices{"50%",  "75%",  "100%", "125%", "150%",
                                     "200%", "250%", "300%", "400%", "500%"};
    return choices;
}

std::optional<double> ParseZoomText(const QString& text)
{
    if (!text.endsWith(QLatin1Char('%'))) return std::nullopt;
    const QString number = text.chopped(1).trimmed();
    bool ok = false;
    const double value = QLocale::c().toDouble(number, &ok);
    if (!ok || !std::isfinite(value)) return std::nullopt;
    return value / 100;
}

double LimitZoom(double zoom)
{
    if (!(zoom >= MinZoom)) return MinZoom;
    return std::min(zoom, MaxViewZoom);
}

QString ZoomText(double zoom)
{
    return QString::number(std::round(zoom * 100), 'f', 0) + QLatin1Char('%');
}
