#include "wave/readouttext.h"

#include "text/valuetext.h"

#include <optional>

namespace {

struct Scaled {
    double value;
    const char* unit;
};

// The first unit whose bound the value reaches, largest first.
std::optional<Scaled> timeUnit(double v)
{
    if (v >= 1) return Scaled{v, "s"};
    if (v >= 0.001) return Scaled{v * 1000, "ms"};
    if (v >= 1e-6) return Scaled{v * 1e6, "us"};
    if (v >= 1e-9) return Scaled{v * 1e9, "ns"};
    if (v >= 1e-12) return Scaled{v * 1e12, "ps"};
    return std::nullopt;
}

Scaled freqUnit(double v)
{
    if (v >= 1e9) return {v / 1e9, "GHz"};
    if (v >= 1e6) return {v / 1e6, "MHz"};
    if (v >= 1000) return {v / 1000, "KHz"};
    return {v, "Hz"};
}

bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// The divisor a unit prefix stands for; 0 for a letter that is no prefix.
double prefixDivisor(QChar c)
{
    switch (c.unicode()) {
    case 'n': return 1e9;
    case 'u': return 1e6;
    case 'm': return 1000;
    case 'p': return 1e12;
    default: return 0;
    }
}

} // namespace

QString ConvertVoltToStr(double value)
{
    if (value < 1) return FormatMask(value * 1000, QStringLiteral("0.0")) + QStringLiteral("mV");
    return FormatMask(value, QStringLiteral("0.0")) + QStringLiteral("V");
}

QString ConvertTimeToStr(double value, double* scaled)
{
    if (value == 0) {
        if (scaled) *scaled = 0;
        return QStringLiteral("0.000s");
    }
    const std::optional<Scaled> unit = timeUnit(value);
    if (!unit) return QString();
    if (scaled) *scaled = unit->value;
    return FormatMask(unit->value, QStringLiteral("0.00")) + QLatin1String(unit->unit);
}

QString ConvertFreqToStr(double value)
{
    const Scaled unit = freqUnit(value);
    return FormatMask(unit.value, QStringLiteral("0.00")) + QLatin1String(unit.unit);
}

double GetTimeVlu(const QString& text)
{
    const qsizetype unit = text.indexOf(QLatin1Char('s'));
    if (unit < 0) return Val(text);
    if (unit == 0) return 0;
    const QChar before = text.at(unit - 1);
    if (isAsciiDigit(before)) return Val(text.left(unit));
    const double divisor = prefixDivisor(before);
    if (divisor == 0) return 0;
    return Val(text.left(unit - 1)) / divisor;
}
