#include "text/valuetextprobe.h"

#include "text/formatmask.h"
#include "text/steplists.h"
#include "text/valuetextladder.h"

#include <QHash>

namespace {

int probeRatio(const QString& probe)
{
    static const QHash<QString, int> ratios = {
        {QStringLiteral("2X"), 2},     {QStringLiteral("5X"), 5},     {QStringLiteral("10X"), 10},
        {QStringLiteral("20X"), 20},   {QStringLiteral("50X"), 50},   {QStringLiteral("100X"), 100},
        {QStringLiteral("200X"), 200}, {QStringLiteral("500X"), 500}, {QStringLiteral("1000X"), 1000}};
    return ratios.value(probe, 0);
}

QString scaleText(long long microvolts)
{
    return VoltText3(GeneralFormat(static_cast<double>(microvolts) / 1e6));
}

} // namespace

// A probe's accepted texts are the input ladder times its ratio, in the scale
// text form ("25.0mV", "2.50kV"); the answer is the ladder step itself.
QString ProbeScaleToOneX(const QString& voltDiv, const QString& probe)
{
    const int ratio = probeRatio(probe);
    if (ratio == 0) return voltDiv;
    for (int step : CoarseVoltLadder)
        if (scaleText(static_cast<long long>(step) * ratio) == voltDiv) return scaleText(step);
    return QStringLiteral("10.0V");
}
