#include "text/valuetextformat.h"

#include "text/formatmask.h"
#include "text/valuetextparse.h"

namespace {

QString percentMask(double fraction)
{
    return fraction >= 0.1 ? QStringLiteral("00.0%") : QStringLiteral("0.00%");
}

} // namespace

QString PercentText(const QString& text)
{
    const double v = Val(StripAtLineFeed(text));
    return FormatMask(v, percentMask(v));
}

QString PercentTextOf100(const QString& text)
{
    const float v = static_cast<float>(Val(StripAtLineFeed(text)) / 100);
    return FormatMaskSingle(v, percentMask(v));
}

QString LevelDivText(const QString& level, const QString& scale)
{
    const double scaleValue = Val(GeneralFormat(Val(StripAtLineFeed(scale))));
    const double divisions = Val(StripAtLineFeed(level)) / scaleValue;
    return FormatMask(divisions, QStringLiteral("#0.00")) + QStringLiteral("div");
}

QString ExactTimeText(double seconds)
{
    const QString mask = QStringLiteral("0.0########################");
    QString text;
    if (seconds <= 1e-09)
        text = FormatMaskScaled(seconds, 9, mask) + QStringLiteral("ns");
    else if (seconds <= 1e-06)
        text = FormatMaskScaled(seconds, 6, mask) + QStringLiteral("us");
    else if (seconds <= 0.001)
        text = FormatMaskScaled(seconds, 3, mask) + QStringLiteral("ms");
    else
        text = FormatMask(seconds, mask) + QStringLiteral("s");
    // A host that writes a decimal comma must not reach the wire.
    return text.replace(u',', u'.');
}

QString ExactTimeWireText(double seconds)
{
    return ExactTimeText(seconds).replace(u',', u'.');
}
