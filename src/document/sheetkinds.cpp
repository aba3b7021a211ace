#include "document/sheetkinds.h"

#include "text/language.h"

namespace {

struct KindFacts {
    const char16_t* english;
    const char16_t* chinese;
    const char* window;
    int tableSize;
    int limit;
};

// A new window is allowed while count + 1 stays below 17 (Measure, Data, Wave),
// below 4 (Memory Wave) or at most 4 (Record).
constexpr std::array<KindFacts, SheetKindCount> Facts{{
    {u"Measure", u"测量", "frmMeasure", 18, 16},
    {u"Data", u"数据", "frmData", 18, 16},
    {u"Wave", u"波形", "frmWave", 18, 16},
    {u"Memory Wave", u"波形文件", "frmOpenWaveform", 4, 3},
    {u"Record", u"录制文件", "frmRecordPlay", 5, 4},
}};

const KindFacts& factsOf(SheetKind kind)
{
    return Facts[static_cast<size_t>(KindIndex(kind))];
}

} // namespace

QString KindLabel(SheetKind kind, int language)
{
    const KindFacts& facts = factsOf(kind);
    return QString::fromUtf16(IsChinese(language) ? facts.chinese : facts.english);
}

int KindTableSize(SheetKind kind)
{
    return factsOf(kind).tableSize;
}

int KindWindowLimit(SheetKind kind)
{
    return factsOf(kind).limit;
}

QString KindWindowName(SheetKind kind)
{
    return QString::fromLatin1(factsOf(kind).window);
}
