#include "text/valuetextlevel.h"

#include "text/formatmask.h"
#include "text/valuetextparse.h"

#include <QStringList>
#include <utility>

namespace {

InstrumentQuery& levelQuery()
{
    static InstrumentQuery query = [](const QString&) { return QString(); };
    return query;
}

double askNumber(const QString& query)
{
    return Val(AskInstrument(query));
}

struct ScaleAndOffset {
    double scale = 0;
    double offset = 0;
};

ScaleAndOffset sourceScale(const QString& source)
{
    static const QStringList channels = {QStringLiteral("CHANNEL1"), QStringLiteral("CHANNEL2"),
                                         QStringLiteral("CHANNEL3"), QStringLiteral("CHANNEL4")};
    if (channels.contains(source)) {
        ScaleAndOffset s;
        s.scale = askNumber(QLatin1Char(':') + source + QStringLiteral(":SCALE?"));
        s.offset = askNumber(QLatin1Char(':') + source + QStringLiteral(":OFFSET?"));
        return s;
    }
    if (source == QLatin1String("EXT")) return {0.2, 0};
    if (source == QLatin1String("EXT5")) return {1, 0};
    return {};
}

} // namespace

InstrumentQuery SetLevelQuery(InstrumentQuery query)
{
    if (!query) query = [](const QString&) { return QString(); };
    return std::exchange(levelQuery(), std::move(query));
}

QString AskInstrument(const QString& query)
{
    return StripAtLineFeed(levelQuery()(query));
}

QString LevelToVolts(const QString& divText, const QString& source)
{
    const ScaleAndOffset s = sourceScale(StripAtLineFeed(source));
    return GeneralFormat(Val(divText) * s.scale - s.offset).trimmed();
}
