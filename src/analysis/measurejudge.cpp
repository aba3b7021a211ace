#include "analysis/measurejudge.h"

#include "text/language.h"
#include "text/productinfo.h"
#include "text/valuetext.h"

namespace {

const QString LineEnd = QStringLiteral("\r\n");

LimitParts partsOf(const MeasureText& text)
{
    return {text.number, text.unitIndex};
}

// The export lists the items in this order, which is neither the rows' nor the slots'.
constexpr const char* ExportOrder[MeasureItemCount] = {
    "Vpp",       "Vmax",   "Vmin",         "Vavg",         "Vamp",      "Vtop",
    "Vbase",     "Vrms",   "Vover",        "Vpre",         "Frequency", "Rise Time",
    "Fall Time", "Period", "Pulse Width+", "Pulse Width-", "Duty+",     "Duty-"};

} // namespace

const QStringList& MeasureUnits(MeasureFamily family)
{
    static const QStringList volt = {"MV", "kV", "V", "mV", "uV"};
    static const QStringList freq = {"GHz", "MHz", "kHz", "Hz", "mHz"};
    static const QStringList time = {"ps", "ns", "us", "ms", "s"};
    static const QStringList percent = {"%"};
    switch (family) {
    case MeasureFamily::Volt: return volt;
    case MeasureFamily::Frequency: return freq;
    case MeasureFamily::Time: return time;
    default: return percent;
    }
}

LimitParts SplitLimit(MeasureFamily family, double value)
{
    switch (family) {
    case MeasureFamily::Volt: return partsOf(MeasureVoltParts(value));
    case MeasureFamily::Frequency: return partsOf(MeasureFreqParts(value));
    case MeasureFamily::Time: return partsOf(MeasureTimeParts(value));
    default: return partsOf(MeasureRatioParts(value));
    }
}

QString LimitText(MeasureFamily family, double value)
{
    const LimitParts parts = SplitLimit(family, value);
    return parts.number + MeasureUnits(family).value(parts.unitIndex);
}

double ParseMeasureValue(MeasureFamily family, const QString& text)
{
    switch (family) {
    case MeasureFamily::Volt: return ParseMeasureVoltText(text);
    case MeasureFamily::Frequency: return ParseFreqText(text);
    case MeasureFamily::Time: return ParseTimeText(text);
    default: return ParsePercentText(text);
    }
}

// Frequencies take the frequency text, whose "kHz" the parser reads back; the
// measured-number text writes "KHz", which it would refuse.
QString MeasureValueText(const MeasureItemInfo& item, const QString& reply)
{
    const QString text = StripAtLineFeed(reply).trimmed();
    if (text == NoMeasureText) return text;
    switch (item.family) {
    case MeasureFamily::Volt: return MeasureVoltText(Val(text));
    case MeasureFamily::Frequency: return FreqText(text);
    case MeasureFamily::Time: return MeasureTimeText(Val(text));
    default: return item.replyInPercent ? PercentTextOf100(text) : PercentText(text);
    }
}

JudgementWords JudgementWordsOf(int language)
{
    if (IsChinese(language))
        return {QStringLiteral("失败 [低于下限]"), QStringLiteral("失败 [高于上限]"), QStringLiteral("通过"),
                QStringLiteral("失败")};
    return {QStringLiteral("Fail [Under Limit]"), QStringLiteral("Fail [Over Limit]"), QStringLiteral("Pass"),
            QStringLiteral("Fail")};
}

QString JudgeItem(const MeasureItem& item, MeasureFamily family, const JudgementWords& words)
{
    if (item.Value.isEmpty() || !item.Enabled) return {};
    const double value = ParseMeasureValue(family, item.Value);
    if (!ValueValid) return words.fail;
    if (value < item.UnderLimit) return words.under;
    if (value <= item.OverLimit) return words.pass;
    return words.over;
}

std::array<MeasureRow, MeasureItemCount> JudgeMeasureRecord(MeasureRecord& record, int language)
{
    const JudgementWords words = JudgementWordsOf(language);
    std::array<MeasureRow, MeasureItemCount> rows;
    for (int row = 0; row < MeasureItemCount; ++row) {
        const MeasureItemInfo& info = MeasureItems[size_t(row)];
        MeasureItem& item = record.Items[size_t(info.slot)];
        MeasureRow& shown = rows[size_t(row)];
        shown.name = MeasureItemName(row, language);
        shown.value = item.Value;
        item.Judgement = JudgeItem(item, info.family, words);
        if (item.Value.isEmpty() || !item.Enabled) continue;
        shown.under = LimitText(info.family, item.UnderLimit);
        shown.over = LimitText(info.family, item.OverLimit);
        shown.result = item.Judgement;
    }
    return rows;
}

bool AllEnabledPass(const MeasureRecord& record, int language)
{
    const QString pass = JudgementWordsOf(language).pass;
    for (const MeasureItem& item : record.Items)
        if (item.Enabled && item.Judgement != pass) return false;
    return true;
}

QString MeasureExportText(const MeasureRecord& record)
{
    QString text = ProgramTitle + QStringLiteral(" -[Measure]") + LineEnd;
    text += LineEnd + LineEnd + LineEnd + LineEnd;
    text += record.Legend + LineEnd + LineEnd;
    for (const char* name : ExportOrder) {
        const MeasureItem& item = record.Items[size_t(MeasureItems[size_t(MeasureRowOf(name))].slot)];
        text += QLatin1String(name) + QLatin1Char('\t') + item.Value + QLatin1Char('\t') + item.Judgement +
                LineEnd;
    }
    return text;
}
