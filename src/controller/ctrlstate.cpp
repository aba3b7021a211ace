#include "controller/ctrlstate.h"

#include "text/treewords.h"
#include "link/devicefacts.h"
#include "wave/wavechannels.h"

QString CtrlFileName;
bool CtrlDirty = false;
QString ChDisplay[5] = {
    {}, QStringLiteral("ON"), QStringLiteral("OFF"), QStringLiteral("OFF"), QStringLiteral("OFF")};

void ResetCtrlState()
{
    CtrlFileName.clear();
    CtrlDirty = false;
    ChDisplay[1] = QStringLiteral("ON");
    for (int n = 2; n <= 4; ++n)
        ChDisplay[n] = QStringLiteral("OFF");
}

void InstallTreeDisplaySwitches()
{
    InstrumentDisplaySwitches = [] {
        DisplaySwitches on{};
        for (int n = 1; n <= 4; ++n)
            on[size_t(n - 1)] = IsValueWord(ChDisplay[n], QStringLiteral("ON"));
        on[4] = MathDisplay == QLatin1String("ON");
        return on;
    };
}
