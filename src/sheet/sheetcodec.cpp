#include "sheet/sheetcodec.h"

#include <charconv>
#include <cmath>

namespace {

template <typename Number> QByteArray shortest(Number value)
{
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return QByteArray(buffer, static_cast<int>(result.ptr - buffer));
}

} // namespace

void SheetWriter::line(const QByteArray& value)
{
    out += value;
    out += "\r\n";
}

void SheetWriter::text(const QString& value)
{
    line('"' + value.toUtf8() + '"');
}

void SheetWriter::flag(bool value)
{
    line(value ? QByteArrayLiteral("#TRUE#") : QByteArrayLiteral("#FALSE#"));
}

void SheetWriter::integer(int64_t value)
{
    line(QByteArray::number(static_cast<qlonglong>(value)));
}

void SheetWriter::single(float value)
{
    line(shortest(value));
}

void SheetWriter::real(double value)
{
    line(shortest(value));
}

SheetReader::SheetReader(const QByteArray& content) : data(content) {}

QByteArrayView SheetReader::take()
{
    if (atEnd()) return {};
    qsizetype end = data.indexOf('\n', next);
    if (end < 0) end = data.size();
    QByteArrayView line(data.constData() + next, end - next);
    next = end + 1;
    if (line.endsWith('\r')) line.chop(1);
    return line;
}

QString SheetReader::text()
{
    QByteArrayView value = take();
    if (value.startsWith('"')) value = value.sliced(1);
    if (value.endsWith('"')) value.chop(1);
    return QString::fromUtf8(value);
}

bool SheetReader::flag()
{
    const QByteArrayView value = take().trimmed();
    // A number stands for a flag too: anything but zero is set.
    if (value == "#TRUE#") return true;
    if (value == "#FALSE#" || value.isEmpty()) return false;
    return value.toLongLong() != 0;
}

int64_t SheetReader::integer()
{
    const QByteArrayView value = take().trimmed();
    int64_t whole = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), whole);
    if (error == std::errc() && end == value.data() + value.size()) return whole;
    // A number written with a point is rounded, as a conversion to an integer would.
    const double real = value.toDouble();
    if (!(std::abs(real) < 9.2e18)) return 0;
    return static_cast<int64_t>(std::llround(real));
}

float SheetReader::single()
{
    return take().trimmed().toFloat();
}

double SheetReader::real()
{
    return take().trimmed().toDouble();
}
