// Feeds arbitrary reply text to every value text parser and formatter: none
// may crash, hang or read out of bounds, whatever the instrument sends.
#include "text/valuetext.h"
#include "text/formatmask.h"

#include <QString>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromLatin1(reinterpret_cast<const char*>(data), qsizetype(size));
    ParsePercentText(text);
    ParseFreqText(text);
    ParseVoltText(text);
    ParseMeasureVoltText(text);
    ParseTimeText(text);
    TimeTextToExponent(text);
    TimeText3(text);
    TimeText5(text);
    VoltText3(text);
    FreqText(text);
    DbText(text);
    PercentTextOf100(text);
    LevelDivText(text, text);
    ProbeScaleToOneX(text, text);
    FormatMask(ParseVoltText(text), text);
    return 0;
}
