#include "stored/storedfiledialogs.h"

#include "text/language.h"

FileDialogRequest MemoryWaveDialogRequest(int language)
{
    if (IsChinese(language))
        return {QStringLiteral("打开波形文件"), QStringLiteral("波形文件 (*.wfm)"), {}, {}};
    return {QStringLiteral("Open Waveform Files"), QStringLiteral("Waveform Files (*.wfm)"), {}, {}};
}

FileDialogRequest RecordDialogRequest(int language)
{
    if (IsChinese(language))
        return {QStringLiteral("打开波形录制文件"), QStringLiteral("录制文件 (*.rcd)"), {}, {}};
    return {QStringLiteral("Open Record Files"), QStringLiteral("Record Files (*.rcd)"), {}, {}};
}
