#include "text/captions.h"

#include "text/captiontexts.h"
#include "text/language.h"

#include <array>

namespace {

const CaptionData& table(CaptionList which)
{
    static const std::array<CaptionData, CaptionListCount> all = [] {
        std::array<CaptionData, CaptionListCount> built;
        for (int i = 0; i < CaptionListCount; ++i)
            built[i] = MakeCaptionData(static_cast<CaptionList>(i));
        return built;
    }();
    static const CaptionData none;
    const int index = static_cast<int>(which);
    return index >= 0 && index < CaptionListCount ? all[index] : none;
}

} // namespace

const QStringList& Captions(CaptionList which, int language)
{
    const CaptionData& data = table(which);
    return IsChinese(language) ? data.chinese : data.english;
}

int CaptionSlotCount(CaptionList which)
{
    const CaptionData& data = table(which);
    return data.pairs.isEmpty() ? int(data.english.size()) : int(data.pairs.size());
}

CaptionPair CaptionSlot(CaptionList which, int slot)
{
    const CaptionData& data = table(which);
    if (slot < 0 || slot >= CaptionSlotCount(which)) return {-1, -1};
    return data.pairs.isEmpty() ? CaptionPair{short(slot), short(slot)} : data.pairs[slot];
}

QString Caption(CaptionList which, int slot, int language)
{
    const CaptionPair pair = CaptionSlot(which, slot);
    const bool chinese = IsChinese(language) ? pair.chinese >= 0 : pair.english < 0;
    const int index = chinese ? pair.chinese : pair.english;
    return index < 0 ? QString() : Captions(which, chinese ? LanguageChinese : LanguageEnglish).value(index);
}
