#include "model/simcontext.h"
#include "model/simtext.h"

#include <cmath>

QByteArray flagSetting(const ScpiCommand& command, bool& field)
{
    if (command.query) return flagReply(field);
    if (const std::optional<bool> value = parseFlag(command.upperArgument)) field = *value;
    return {};
}

QByteArray numberSetting(const ScpiCommand& command, double& field, double low, double high)
{
    if (command.query) return sciReply(field);
    const std::optional<double> value = parseNumber(command.argument);
    if (value && *value >= low && *value <= high) field = *value;
    return {};
}

QByteArray integerSetting(const ScpiCommand& command, int& field, int low, int high)
{
    if (command.query) return QByteArray::number(field) + '\n';
    const std::optional<double> value = parseNumber(command.argument);
    if (value && *value == std::floor(*value) && *value >= low && *value <= high) field = int(*value);
    return {};
}
