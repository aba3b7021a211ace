#include "wave/alternation.h"

#include "link/linkcommands.h"
#include "text/valuetext.h"

#include <QStringList>

bool IsChannelPairOrdered(const QString& sourceText)
{
    static const QStringList ordered = {
        QStringLiteral("CH3CH4"), QStringLiteral("CHANNEL3CHANNEL4"), QStringLiteral("CHAN3CHAN4"),
        QStringLiteral("CH1CH2"), QStringLiteral("CHANNEL1CHANNEL2"), QStringLiteral("CHAN1CHAN2")};
    return ordered.contains(sourceText.toUpper());
}

bool AskChannelPairOrdered()
{
    const QString reply = StripAtLineFeed(AskCmd(QStringLiteral(":TRIGGER:ALTERNATION:SOURCE?")));
    return IsChannelPairOrdered(reply);
}

AltPlacement AltPlacementOf(int channel, bool ordered, const WaveParameter& parameter)
{
    // CH1 always follows source A and CH4 source B; CH2 and CH3 swap with the pair's order.
    bool lower = channel == 4;
    if (channel == 2) lower = ordered;
    if (channel == 3) lower = !ordered;
    if (lower) return {true, parameter.s16ScrStartPosB, parameter.s16ScrEndPosB};
    return {false, parameter.s16ScrStartPosA, parameter.s16ScrEndPosA};
}
