#include "wave/fftsetting.h"

#include "acquire/waverecord.h"
#include "document/sheetstate.h"
#include "text/captions.h"

#include <algorithm>

#include <QRandomGenerator>

std::array<FftPlaceholder, 18> FftPlaceholders;

namespace {

const QString Channel1Source = QStringLiteral("CH1");
const QString Channel2Source = QStringLiteral("CH2");
constexpr int VrmsMeasure = 5;

} // namespace

const QStringList& FftWindowNames()
{
    static const QStringList names{"Rectangle", "Hanning", "Hamming", "Blackman"};
    return names;
}

QStringList FftScaleNames(int language)
{
    return {Caption(CaptionList::MeasureNames, VrmsMeasure, language), QStringLiteral("dBVrms")};
}

namespace {

// The wave records behind the open sheet's wave windows; a closed sheet's records
// keep their titles but are no target.
int openWaveRecords()
{
    return std::min(int(SheetSlotNames[size_t(KindIndex(SheetKind::Wave))].size()), WaveRecordCount);
}

} // namespace

QStringList FftTargetTitles()
{
    QStringList titles;
    for (int slot = 0; slot < openWaveRecords(); ++slot)
        titles.append(WaveRecords[size_t(slot)].WaveTitle);
    if (titles.isEmpty()) titles.append(NoTargetText);
    return titles;
}

FftTarget ChooseFftTarget(const QString& title)
{
    FftTarget target;
    if (title == NoTargetText || title.isEmpty()) return target;
    for (int slot = 0; slot < openWaveRecords(); ++slot) {
        const WaveRecord& record = WaveRecords[slot];
        if (record.WaveTitle != title) continue;
        target.slot = slot;
        target.okEnabled = record.HasData;
        if (!record.HasData) return target;
        switch (record.LastChannel) {
        case 1: target.sources = QStringList{Channel1Source}; break;
        case 2: target.sources = QStringList{Channel2Source}; break;
        case 3: target.sources = QStringList{Channel1Source, Channel2Source}; break;
        case 4: target.disablesSource = true; break;
        default: break;
        }
        return target;
    }
    return target;
}

void StoreFftPlaceholder(int slot, const QString& windowText, bool fullScreen)
{
    if (slot < 0 || slot >= WaveRecordCount) return;
    WaveArray spectrum(FftPlaceholderCount);
    for (int32_t& value : spectrum)
        value = int32_t(QRandomGenerator::global()->bounded(255));
    WaveRecords[slot].WaveFFT = std::move(spectrum);
    FftPlaceholders[slot] = {true, windowText, FftPlaceholderCount, fullScreen};
}

void ResetFftPlaceholders()
{
    FftPlaceholders.fill({});
}
