#include "controller/ctrlstate.h"
#include "controller/fineadjust.h"

#include "link/devicefacts.h"
#include "text/treewords.h"
#include "wave/wavechannels.h"

CtrlRecord CtrlData;
QString CtrlFileName;
bool CtrlDirty = false;

namespace {

void setAltDefaults(CtrlRecord& r, int language)
{
    const auto word = [language](const char* english, WordSense sense = WordSense::Plain) {
        return ValueWord(QString::fromLatin1(english), language, sense);
    };
    const QString level = QStringLiteral("0.00div"), sensitivity = QStringLiteral("0.10div"),
                  holdoff = QStringLiteral("100ns"), width = QStringLiteral("1us");
    for (int w = 0; w < 2; ++w) {
        r.AltEdge[w] = {word("RISING"), word("DC"), level, sensitivity, holdoff};
        r.AltPulse[w] = {word("+Less Than"), width, word("DC"), level, sensitivity, holdoff};
        r.AltVideo[w] = {word("POSITIVE"), word("LINE"), "NTSC", "1", level, sensitivity, holdoff};
        r.AltSlope[w] = {word("+Less Than", WordSense::SlopeMode),
                         width,
                         "PA",
                         word("DC"),
                         level,
                         level,
                         sensitivity,
                         holdoff};
    }
}

} // namespace

CtrlRecord NewCtrlRecord(int language)
{
    const auto word = [language](const char* english, WordSense sense = WordSense::Plain) {
        return ValueWord(QString::fromLatin1(english), language, sense);
    };
    const QString on = word("ON"), off = word("OFF"), dc = word("DC"), autoSweep = word("AUTO");
    const QString sensitivity = QStringLiteral("0.40div"), level = QStringLiteral("0.00div");
    CtrlRecord r;
    r.RunStop = word("RUN");
    for (int n = 1; n <= 4; ++n) {
        r.ChDisplay[n] = n == 1 ? on : off;
        r.ChVoltDiv[n] = QStringLiteral("1.00V");
        r.ChOffset[n] = QStringLiteral("0.00mV");
        r.ChCoupling[n] = dc;
        r.ChBwLimit[n] = off;
        r.ChProbe[n] = QStringLiteral("10X");
        r.ChInvert[n] = off;
    }
    r.LaEnable = off;
    r.LaThreshold = QStringLiteral("TTL");
    r.LaHighByte = r.LaLowByte = off;
    r.TimeDiv = r.TimeDivA = r.TimeDivB = QStringLiteral("1.000us");
    r.TimeDelay = r.TimeDelayA = r.TimeDelayB = QStringLiteral("0.0000s");
    r.Holdoff = QStringLiteral("500ns");
    r.MemorySize = QStringLiteral("4000");
    r.TimeFormat = QStringLiteral("Y-T");
    r.TrigMethod = word("EDGE");
    r.EdgeSlope = word("RISING");
    r.EdgeSource = QStringLiteral("CHANNEL1");
    r.EdgeSweep = autoSweep;
    r.EdgeCoupling = dc;
    r.EdgeHf = off;
    r.EdgeSensitivity = sensitivity;
    r.EdgeLevel = level;
    r.PulseSource = QStringLiteral("CH1");
    r.PulseMode = word("+Less Than");
    r.PulseWidth = QStringLiteral("1us");
    r.PulseCoupling = dc;
    r.PulseHf = off;
    r.PulseSensitivity = sensitivity;
    r.PulseLevel = level;
    r.PulseSweep = autoSweep;
    r.VideoSource = QStringLiteral("CH1");
    r.VideoPolarity = word("POSITIVE");
    r.VideoSync = word("LINE");
    r.VideoStandard = QStringLiteral("NTSC");
    r.VideoLine = QStringLiteral("1");
    r.VideoSensitivity = sensitivity;
    r.VideoLevel = level;
    r.PatternSource = QStringLiteral("CH1");
    for (QString& code : r.PatternCode)
        code = QStringLiteral("X");
    r.PatternSweep = autoSweep;
    r.PatternCoupling = dc;
    r.PatternHf = off;
    r.PatternSensitivity = sensitivity;
    r.PatternOneLevel = level;
    r.SlopeSource = QStringLiteral("CH1");
    r.SlopeMode = word("+Less Than", WordSense::SlopeMode);
    r.SlopeTime = QStringLiteral("1us");
    r.SlopeWindow = QStringLiteral("PA");
    r.SlopeLevelA = level;
    r.SlopeLevelB = QStringLiteral("0.20div");
    r.SlopeCoupling = dc;
    r.SlopeSensitivity = sensitivity;
    r.SlopeSweep = autoSweep;
    r.AltSourceA = QStringLiteral("CH1");
    r.AltSourceB = QStringLiteral("CH2");
    r.AltTypeA = r.AltTypeB = word("EDGE");
    setAltDefaults(r, language);
    r.DurationQualifier = word("Less Than");
    r.DurationTime = QStringLiteral("1us");
    r.DurationSweep = autoSweep;
    r.DurationSpare = QStringLiteral("H");
    r.AcqMode = word("REAL_TIME");
    r.AcqType = word("NORMAL");
    r.AcqAverages = QStringLiteral("16");
    r.AcqIntensity = QStringLiteral("3%");
    r.AcqAntiAlias = off;
    r.DisplayType = word("VECTORS");
    r.DisplayPersist = off;
    r.DisplayGrid = word("FULL");
    return r;
}

void ResetCtrlState()
{
    CtrlData = NewCtrlRecord(Language);
    CtrlFileName.clear();
    CtrlDirty = false;
    ChAdjustMode = {};
}

void ClearInvertsAndSpare()
{
    const QString off = ValueWord(QStringLiteral("OFF"));
    CtrlData.ChInvert[1] = CtrlData.ChInvert[2] = off;
    CtrlData.SpareTime = off;
}

void InstallTreeDisplaySwitches()
{
    InstrumentDisplaySwitches = [] {
        DisplaySwitches on{};
        for (int n = 1; n <= 4; ++n)
            on[size_t(n - 1)] = IsValueWord(CtrlData.ChDisplay[n], QStringLiteral("ON"));
        on[4] = MathDisplay == QLatin1String("ON");
        return on;
    };
}
