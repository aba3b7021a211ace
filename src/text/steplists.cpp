#include "text/steplists.h"

#include "text/valuetext.h"

#include <algorithm>

namespace {

QStringList lowTimeSteps(int bandwidthClass)
{
    switch (bandwidthClass) {
    case 0: return {};
    case 1: return {QStringLiteral("10.00ns")};
    case 2: return {QStringLiteral("5.000ns"), QStringLiteral("10.00ns")};
    case 3: return {QStringLiteral("2.000ns"), QStringLiteral("5.000ns"), QStringLiteral("10.00ns")};
    default:
        return {QStringLiteral("1.000ns"), QStringLiteral("2.000ns"), QStringLiteral("5.000ns"),
                QStringLiteral("10.00ns")};
    }
}

// Counts down by repeated subtraction in double precision; the rounding this
// gathers is what keeps the last step (-6.04, 0.09) out of the list.
QStringList divisionSteps(double from, double step, double last)
{
    QStringList steps;
    for (double counter = from; counter >= last; counter -= step)
        steps << FormatMask(counter, QStringLiteral("0.00div"));
    return steps;
}

} // namespace

int BandwidthClassOf(int modelDigits)
{
    switch (modelDigits) {
    case 2: return 0;
    case 4: return 1;
    case 6: return 2;
    case 10: return 3;
    case 20: return 4;
    default: return 5;
    }
}

QStringList SetCtrlDialogTimeDivNum(const QString& formatReply, int bandwidthClass)
{
    static const QStringList ladder = {
        QStringLiteral("20.00ns"), QStringLiteral("50.00ns"), QStringLiteral("100.0ns"),
        QStringLiteral("200.0ns"), QStringLiteral("500.0ns"), QStringLiteral("1.000us"),
        QStringLiteral("2.000us"), QStringLiteral("5.000us"), QStringLiteral("10.00us"),
        QStringLiteral("20.00us"), QStringLiteral("50.00us"), QStringLiteral("100.0us"),
        QStringLiteral("200.0us"), QStringLiteral("500.0us"), QStringLiteral("1.000ms"),
        QStringLiteral("2.000ms"), QStringLiteral("5.000ms"), QStringLiteral("10.00ms"),
        QStringLiteral("20.00ms"), QStringLiteral("50.00ms"), QStringLiteral("100.0ms"),
        QStringLiteral("200.0ms"), QStringLiteral("500.0ms"), QStringLiteral("1.000s"),
        QStringLiteral("2.000s"),  QStringLiteral("5.000s"),  QStringLiteral("10.00s"),
        QStringLiteral("20.00s")};
    QStringList steps = lowTimeSteps(bandwidthClass) + ladder;
    const QString format = StripAtLineFeed(formatReply);
    if (format == QLatin1String("X-Y") || format == QLatin1String("ROLL")) steps << QStringLiteral("50.00s");
    return steps;
}

QStringList SetCtrlDialogVoltDivNum(const QString& probe)
{
    static const QStringList steps = {
        QStringLiteral("2.00mV"), QStringLiteral("5.00mV"), QStringLiteral("10.0mV"),
        QStringLiteral("20.0mV"), QStringLiteral("50.0mV"), QStringLiteral("100mV"),
        QStringLiteral("200mV"),  QStringLiteral("500mV"),  QStringLiteral("1.00V"),
        QStringLiteral("2.00V"),  QStringLiteral("5.00V"),  QStringLiteral("10.0V"),
        QStringLiteral("20.0V"),  QStringLiteral("50.0V"),  QStringLiteral("100V"),
        QStringLiteral("200V"),   QStringLiteral("500V"),   QStringLiteral("1kV"),
        QStringLiteral("2kV"),    QStringLiteral("5kV")};
    // Each probe shows eleven steps, three ladder places (one decade) above the last.
    static const QStringList probes = {QStringLiteral("1X"), QStringLiteral("10X"), QStringLiteral("100X"),
                                       QStringLiteral("1000X")};
    const qsizetype index = probes.indexOf(probe);
    return index < 0 ? QStringList() : steps.mid(index * 3, 11);
}

QStringList SetCtrlDialogTrigLevelNum()
{
    return divisionSteps(6, 0.04, -6.04);
}

QStringList SetCtrlDialogTrigSensitivityNum()
{
    return divisionSteps(1, 0.01, 0.09);
}

QStringList SetCtrlDialogMemOffsetNum(const QString& sizeReply)
{
    const double size = std::clamp(Val(StripAtLineFeed(sizeReply)), 0.0, double(MemOffsetLimit));
    QStringList steps;
    steps.reserve(static_cast<qsizetype>(size));
    for (int i = 0; i < size; ++i)
        steps << QString::number(i);
    return steps;
}

QStringList SetCtrlDialogTimeDivNum(int bandwidthClass)
{
    return SetCtrlDialogTimeDivNum(AskInstrument(QStringLiteral(":TIMEBASE:FORMAT?")), bandwidthClass);
}

QStringList SetCtrlDialogMemOffsetNum()
{
    return SetCtrlDialogMemOffsetNum(AskInstrument(QStringLiteral(":WAVEFORM:SYSMEMSIZE?")));
}
