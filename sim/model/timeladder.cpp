#include "model/timeladder.h"

#include <QVector>
#include <algorithm>
#include <cmath>

namespace {

QVector<double> ladder(double first, double last)
{
    QVector<double> values;
    for (double decade = first; decade <= last * 1.001; decade *= 10) {
        for (double mantissa : {1.0, 2.0, 5.0}) {
            if (decade * mantissa <= last * 1.001) values.append(decade * mantissa);
        }
    }
    return values;
}

const QVector<double>& timeLadder()
{
    static const QVector<double> values = ladder(ShortestTimeScale, LongestTimeScale);
    return values;
}

const QVector<double>& voltLadder()
{
    static const QVector<double> values = [] {
        QVector<double> all = ladder(1e-3, 10.0);
        all.removeFirst(); // from 2 mV
        return all;
    }();
    return values;
}

// The n-th ladder value above (n > 0) or below (n < 0) a value; the ends stay.
double ladderStep(const QVector<double>& values, double from, int steps)
{
    if (steps > 0) {
        auto above = std::upper_bound(values.begin(), values.end(), from * (1 + 1e-6));
        if (above == values.end()) return from;
        return *std::min(above + (steps - 1), values.end() - 1);
    }
    if (steps < 0) {
        auto below = std::lower_bound(values.begin(), values.end(), from * (1 - 1e-6));
        if (below == values.begin()) return from;
        return *std::max(below + steps, values.begin());
    }
    return from;
}

// Fine steps run on a ladder of their own: 50 uV between 2 and 5 mV,
// 100 uV between 5 and 10 mV, and so on up to 100 mV below 10 V.
const QVector<double>& fineStepLadder()
{
    static const QVector<double> values = ladder(1e-5, 1.0).mid(2);
    return values;
}

// The fine step of a value by its range, going up or down.
double fineIncrement(double scale, bool up)
{
    const QVector<double>& values = voltLadder();
    for (int i = 0; i + 1 < values.size(); ++i) {
        const bool inRange = up ? (scale >= values[i] * (1 - 1e-6) && scale < values[i + 1] * (1 - 1e-6))
                                : (scale > values[i] * (1 + 1e-6) && scale <= values[i + 1] * (1 + 1e-6));
        if (inRange) return fineStepLadder().value(i);
    }
    return 0.0;
}

} // namespace

double timeScaleStep(double scale, int steps)
{
    return ladderStep(timeLadder(), scale, steps);
}

std::optional<double> snapTimeScale(double requested)
{
    for (double value : timeLadder()) {
        if (std::fabs(requested - value) <= 0.02 * value) return value;
    }
    return std::nullopt;
}

double coarseVoltStep(double scale, int steps)
{
    return ladderStep(voltLadder(), scale, steps);
}

double fineVoltStep(double scale, int steps)
{
    double value = scale;
    for (int i = 0; i < std::abs(steps); ++i) {
        const double increment = fineIncrement(value, steps > 0);
        if (increment == 0.0) break;
        value += steps > 0 ? increment : -increment;
    }
    return value;
}
