#include "model/simtext.h"

#include <QRegularExpression>
#include <cmath>

QByteArray sciReply(double value)
{
    return QByteArray::number(value, 'e', 3) + '\n';
}

QByteArray textReply(const QByteArray& text)
{
    return text + '\n';
}

QByteArray flagReply(bool on)
{
    return on ? "1\n" : "0\n";
}

namespace {

// Strips a unit word from the end of an upper-case suffix.
QByteArray withoutUnit(const QByteArray& suffix)
{
    for (const char* unit : {"DIV", "HZ", "V", "S"}) {
        if (suffix.endsWith(unit)) return suffix.left(suffix.size() - int(qstrlen(unit)));
    }
    return suffix;
}

std::optional<double> multiplierOf(const QByteArray& prefix)
{
    if (prefix.isEmpty()) return 1.0;
    if (prefix == "K") return 1e3;
    if (prefix == "M") return 1e-3;
    if (prefix == "U") return 1e-6;
    if (prefix == "N") return 1e-9;
    if (prefix == "P") return 1e-12;
    return std::nullopt;
}

} // namespace

std::optional<double> parseNumber(const QByteArray& text)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^\s*([+-]?(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?)\s*([A-Za-z]*)\s*$)"));
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(text));
    if (!match.hasMatch()) return std::nullopt;
    bool ok = false;
    const double number = match.captured(1).toDouble(&ok);
    const std::optional<double> multiplier =
        multiplierOf(withoutUnit(match.captured(2).toUpper().toLatin1()));
    if (!ok || !multiplier || !std::isfinite(number)) return std::nullopt;
    return number * *multiplier;
}

std::optional<bool> parseFlag(const QByteArray& upperText)
{
    if (upperText == "ON" || upperText == "1") return true;
    if (upperText == "OFF" || upperText == "0") return false;
    return std::nullopt;
}

QString engineeringText(double value, const QString& unit)
{
    static const struct {
        double factor;
        const char* prefix;
    } ranges[] = {{1e3, "k"}, {1.0, ""}, {1e-3, "m"}, {1e-6, "u"}, {1e-9, "n"}, {1e-12, "p"}};
    const double magnitude = std::fabs(value);
    if (magnitude == 0.0) return QStringLiteral("0.00") + unit;
    for (const auto& range : ranges) {
        if (magnitude >= range.factor * 0.9995 || range.prefix == ranges[5].prefix) {
            const double scaled = value / range.factor;
            const double size = std::fabs(scaled);
            const int decimals = size >= 99.95 ? 0 : size >= 9.995 ? 1 : 2;
            return QString::number(scaled, 'f', decimals) + QLatin1String(range.prefix) + unit;
        }
    }
    return QString();
}
