#include "model/triggerlevels.h"

#include "model/keywords.h"
#include "model/simcontext.h"
#include "model/simtext.h"
#include "model/triggerfinder.h"

#include <cmath>

namespace {

constexpr double LevelDivisions = 6.0; // how far from the centre a level may lie
constexpr double ShortestHoldoff = 100e-9;
constexpr double LongestHoldoff = 1.5;

double displayFactor(const SimState& state, TriggerSource source)
{
    const int index = int(source);
    return index < Channels ? state.channels[index].probe : 1.0;
}

// Where a level lies on the screen, in divisions from the centre line.
double levelDivisions(const SimState& state, TriggerSource source, double inputVolts)
{
    const double scale = sourceScale(state, source);
    if (scale == 0.0) return 0.0;
    const int index = int(source);
    const double position = index < Channels ? state.channels[index].position : 0.0;
    return inputVolts / scale + position;
}

int lastLine(VideoStandard standard)
{
    return standard == VideoStandard::Ntsc ? 525 : 625;
}

} // namespace

QByteArray levelSetting(const ScpiCommand& command, const SimState& state, TriggerSource source,
                        double& level)
{
    const double factor = displayFactor(state, source);
    if (command.query) return sciReply(level * factor);
    const std::optional<double> value = parseNumber(command.argument);
    if (value && std::fabs(levelDivisions(state, source, *value / factor)) <= LevelDivisions + 1e-9)
        level = source == TriggerSource::AcLine ? 0.0 : *value / factor;
    return {};
}

QByteArray conditionTimeSetting(const ScpiCommand& command, double& time)
{
    return numberSetting(command, time, ShortestTime * 0.999, LongestTime * 1.001);
}

QByteArray holdoffSetting(const ScpiCommand& command, double& holdoff)
{
    return numberSetting(command, holdoff, ShortestHoldoff * 0.999, LongestHoldoff * 1.001);
}

QByteArray sensitivitySetting(const ScpiCommand& command, double& sensitivity)
{
    return numberSetting(command, sensitivity, 0.1 - 1e-9, 1.0 + 1e-9);
}

QByteArray videoLineSetting(const ScpiCommand& command, VideoStandard standard, int& line)
{
    return integerSetting(command, line, 1, lastLine(standard));
}

QByteArray videoStandardSetting(const ScpiCommand& command, VideoStandard& standard, int& line)
{
    const QByteArray reply = keywordSetting(command, standard, Keywords::videoStandard());
    line = std::min(line, lastLine(standard));
    return reply;
}
