#include "analysis/measurerecord.h"

#include "text/language.h"

std::array<MeasureRecord, MeasureRecordCount> MeasureRecords;
std::array<QString, MeasureItemCount> CurrentMeasures;
QString CurrentMeasureLegend;

using F = MeasureFamily;

const std::array<MeasureItemInfo, MeasureItemCount> MeasureItems = {{
    {"Vpp", u"峰峰值", 0, ":VPP", F::Volt},
    {"Vmax", u"最大值", 1, ":VMAX", F::Volt},
    {"Vmin", u"最小值", 2, ":VMIN", F::Volt},
    {"Vavg", u"平均值", 3, ":VAVERAGE", F::Volt},
    {"Vamp", u"幅度", 15, ":VAMPLITUDE", F::Volt},
    {"Vrms", u"均方根值", 6, ":VRMS", F::Volt},
    {"Vtop", u"顶端值", 4, ":VTOP", F::Volt},
    {"Vbase", u"底端值", 5, ":VBASE", F::Volt},
    {"Vpre", u"预冲", 14, ":PRESHOOT", F::Percent},
    {"Vover", u"过冲", 13, ":OVERSHOOT", F::Percent},
    {"Frequency", u"频率", 7, ":FREQUENCY", F::Frequency},
    {"Period", u"周期", 10, ":PERIOD", F::Time},
    {"Rise Time", u"上升时间", 8, ":RISETIME", F::Time},
    {"Fall Time", u"下降时间", 9, ":FALLTIME", F::Time},
    {"Pulse Width+", u"正脉宽", 11, ":PWIDTH", F::Time},
    {"Pulse Width-", u"负脉宽", 12, ":NWIDTH", F::Time},
    {"Duty+", u"正占空比", 16, ":PDUTYCYCLE", F::Percent, true},
    {"Duty-", u"负占空比", 17, ":NDUTYCYCLE", F::Percent, true},
}};

int MeasureRowOf(const QString& english)
{
    for (int row = 0; row < MeasureItemCount; ++row)
        if (english == QLatin1String(MeasureItems[row].english)) return row;
    return -1;
}

QString MeasureItemName(int row, int language)
{
    const MeasureItemInfo& item = MeasureItems[size_t(row)];
    return IsChinese(language) ? QString::fromUtf16(item.chinese) : QString::fromLatin1(item.english);
}

void ResetMeasureRecords()
{
    for (MeasureRecord& record : MeasureRecords)
        record = MeasureRecord{};
    CurrentMeasures.fill(QString());
    CurrentMeasureLegend.clear();
}
