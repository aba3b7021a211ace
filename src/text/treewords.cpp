#include "text/treewords.h"

namespace {

// The slot of an English word with the given sense, or -1.
int slotOf(CaptionList list, const QString& english, WordSense sense)
{
    const QStringList& words = Captions(list, LanguageEnglish);
    for (int slot = 0, count = CaptionSlotCount(list); slot < count; ++slot) {
        const CaptionPair pair = CaptionSlot(list, slot);
        if (pair.sense == sense && words.value(pair.english) == english) return slot;
    }
    return -1;
}

// The word in a language, or the English word itself when the list has no such word.
QString translated(CaptionList list, const QString& english, int language, WordSense sense)
{
    const int slot = slotOf(list, english, sense);
    return slot < 0 ? english : Caption(list, slot, language);
}

} // namespace

// The second list is the one whose words agree with the controller's values
// (grid "完全"/"半网格"); the first list keeps the older screen words.
QString ValueWord(const QString& english, int language, WordSense sense)
{
    return translated(CaptionList::ValueWordsSecond, english, language, sense);
}

QString ValueKeyword(const QString& display)
{
    constexpr CaptionList list = CaptionList::ValueWordsSecond;
    for (int slot = 0, count = CaptionSlotCount(list); slot < count; ++slot) {
        const QString english = Caption(list, slot, LanguageEnglish);
        if (display == english || display == Caption(list, slot, LanguageChinese)) return english;
    }
    return display;
}

bool IsValueWord(const QString& display, const QString& english)
{
    return ValueKeyword(display) == english;
}

QString NodeCaption(const QString& english, int language, WordSense sense)
{
    if (slotOf(CaptionList::NodeNames, english, sense) < 0) return ValueWord(english, language, sense);
    return translated(CaptionList::NodeNames, english, language, sense);
}
