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

SheetReader::SheetReader(const QByteArray& content)
{
    qsizetype start = 0;
    while (start < content.size()) {
        qsizetype end = content.indexOf('\n', start);
        if (end < 0) end = content.size();
        QByteArray value = content.mid(start, end - start);
        if (value.endsWith('\r')) value.chop(1);
        lines.push_back(std::move(value));
        start = end + 1;
    }
}

QByteArray SheetReader::take()
{
    return atEnd() ? QByteArray() : lines[next++];
}

QString SheetReader::text()
{
    QByteArray value = take();
    if (value.startsWith('"')) value.remove(0, 1);
    if (value.endsWith('"')) value.chop(1);
    return QString::fromUtf8(value);
}

bool SheetReader::flag()
{
    const QByteArray value = take().trimmed();
    // A number stands for a flag too: anything but zero is set.
    if (value == "#TRUE#") return true;
    if (value == "#FALSE#" || value.isEmpty()) return false;
    return value.toLongLong() != 0;
}

int64_t SheetReader::integer()
{
    const QByteArray value = take().trimmed();
    bool ok = false;
    const qlonglong whole = value.toLongLong(&ok);
    if (ok) return whole;
    // A number written with a point is rounded, as a conversion to an integer would.
    return static_cast<int64_t>(std::llround(value.toDouble()));
}

float SheetReader::single()
{
    return take().trimmed().toFloat();
}

double SheetReader::real()
{
    return take().trimmed().toDouble();
}
