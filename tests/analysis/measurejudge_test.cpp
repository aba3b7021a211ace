// Judging measure records: the limits' edges, a missing measurement, the slot
// map behind the rows, the value texts by family and the export file.
#include "analysis/measurejudge.h"
#include "state/programstate.h"
#include "text/language.h"
#include "text/valuetext.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

constexpr int VampRow = 4;
constexpr int FrequencyRow = 10;

struct JudgeCase {
    const char* name;
    MeasureFamily family;
    const char* value;
    bool enabled;
    double under, over;
    const char* result;
};

const JudgeCase judgeCases[] = {
    {"equal to under passes", MeasureFamily::Volt, "1.000V", true, 1.0, 2.0, "Pass"},
    {"equal to over passes", MeasureFamily::Volt, "2.000V", true, 1.0, 2.0, "Pass"},
    {"below under", MeasureFamily::Time, "999.000us", true, 1e-3, 2e-3, "Fail [Under Limit]"},
    {"above over", MeasureFamily::Frequency, "1.001kHz", true, 900, 1000, "Fail [Over Limit]"},
    {"percent as a fraction", MeasureFamily::Percent, "50.0%", true, 0.4, 0.6, "Pass"},
    {"no measurement fails", MeasureFamily::Volt, "9.9E+37", true, -1e40, 1e40, "Fail"},
    {"refused prefix fails", MeasureFamily::Frequency, "1.000KHz", true, 0, 1e6, "Fail"},
    {"empty value is blank", MeasureFamily::Volt, "", true, 0, 1, ""},
    {"disabled is blank", MeasureFamily::Volt, "5.000V", false, 0, 1, ""},
    {"negative limits", MeasureFamily::Volt, "-500.000mV", true, -1, -0.5, "Pass"},
};

TEST(MeasureJudge, ItemAgainstItsLimits)
{
    const JudgementWords words = JudgementWordsOf(LanguageEnglish);
    for (const JudgeCase& c : judgeCases) {
        const MeasureItem item{c.value, c.enabled, c.over, c.under, {}};
        EXPECT_EQ(JudgeItem(item, c.family, words), QString::fromLatin1(c.result)) << c.name;
    }
}

struct ValueCase {
    const char* item;
    const char* reply;
    const char* text;
    double number; // what the text parses back to
};

const ValueCase valueCases[] = {
    {"Vpp", "2.000e+00\n", "2.000V", 2.0},          {"Vmin", "-1.5e-03", "-1.500mV", -1.5e-3},
    {"Frequency", "1.000e+03\n", "1.000kHz", 1000}, {"Period", "5.000e-04", "500.000us", 5e-4},
    {"Vover", "5.012e-02", "5.01%", 0.0501},        {"Duty+", "5.000e+01", "50.0%", 0.5},
    {"Rise Time", "9.9E+37\n", "9.9E+37", 0},
};

TEST(MeasureJudge, RepliesBecomeTextsThatParseBack)
{
    for (const ValueCase& c : valueCases) {
        const MeasureItemInfo& item = MeasureItems[size_t(MeasureRowOf(c.item))];
        const QString text = MeasureValueText(item, QString::fromLatin1(c.reply));
        EXPECT_EQ(text, QString::fromLatin1(c.text)) << c.item;
        const double number = ParseMeasureValue(item.family, text);
        EXPECT_EQ(ValueValid, c.number != 0) << c.item;
        EXPECT_NEAR(number, c.number, std::abs(c.number) * 1e-9) << c.item;
    }
}

TEST(MeasureJudge, LimitsSplitIntoTheDialogsUnits)
{
    EXPECT_EQ(LimitText(MeasureFamily::Frequency, 1500), "1.500kHz");
    EXPECT_EQ(LimitText(MeasureFamily::Volt, 2e6), "2.000MV");
    EXPECT_EQ(LimitText(MeasureFamily::Time, 0), "0.000ps");
    EXPECT_EQ(LimitText(MeasureFamily::Percent, 0.25), "25.00%");
    const LimitParts parts = SplitLimit(MeasureFamily::Frequency, 1500);
    EXPECT_EQ(MeasureUnits(MeasureFamily::Frequency).at(parts.unitIndex), "kHz");
}

class MeasureRecordTest : public ::testing::Test {
  protected:
    MeasureRecordTest()
    {
        ResetProgramState();
        for (int slot = 0; slot < MeasureItemCount; ++slot)
            record.Items[size_t(slot)].Value = QStringLiteral("%1.000V").arg(slot);
        record.Items[7].Value = QStringLiteral("1.000kHz");
        record.Legend = QStringLiteral("CH1 1.00V  500.0us 100.0MSa  [Date:2026-01-02 03:04:05]");
    }
    MeasureRecord record;
};

// Vamp's stored item is slot 15 while its row is the fifth: the row shows that
// slot's value and limits, and no other row does.
TEST_F(MeasureRecordTest, RowsFollowTheSlotMapNotTheirOrder)
{
    MeasureItem& vamp = record.Items[15];
    vamp = {QStringLiteral("3.000V"), true, 4.0, 2.0, {}};
    const auto rows = JudgeMeasureRecord(record, LanguageEnglish);
    EXPECT_EQ(rows[VampRow].name, "Vamp");
    EXPECT_EQ(rows[VampRow].value, "3.000V");
    EXPECT_EQ(rows[VampRow].under, "2.000V");
    EXPECT_EQ(rows[VampRow].over, "4.000V");
    EXPECT_EQ(rows[VampRow].result, "Pass");
    EXPECT_EQ(vamp.Judgement, "Pass");
    EXPECT_EQ(rows[FrequencyRow].value, "1.000kHz");
    for (int row = 0; row < MeasureItemCount; ++row)
        EXPECT_EQ(rows[size_t(row)].result.isEmpty(), row != VampRow) << row;
    EXPECT_TRUE(AllEnabledPass(record, LanguageEnglish));
    vamp.OverLimit = 2.5;
    JudgeMeasureRecord(record, LanguageChinese);
    EXPECT_EQ(vamp.Judgement, QStringLiteral("失败 [高于上限]"));
    EXPECT_FALSE(AllEnabledPass(record, LanguageChinese));
}

TEST_F(MeasureRecordTest, ExportListsTheItemsInItsOwnOrder)
{
    record.Items[0] = {QStringLiteral("2.000V"), true, 3, 1, {}};
    JudgeMeasureRecord(record, LanguageEnglish);
    QFile expected(QStringLiteral(SELVANE_TEST_DATA "/analysis/data/measure_export.txt"));
    ASSERT_TRUE(expected.open(QIODevice::ReadOnly));
    EXPECT_EQ(MeasureExportText(record), QString::fromUtf8(expected.readAll()));
}

TEST(MeasureItems, NamesAndSlotsAreOneToOne)
{
    std::array<bool, MeasureItemCount> used{};
    for (int row = 0; row < MeasureItemCount; ++row) {
        EXPECT_EQ(MeasureRowOf(MeasureItemName(row, LanguageEnglish)), row);
        used[size_t(MeasureItems[size_t(row)].slot)] = true;
    }
    EXPECT_EQ(std::count(used.begin(), used.end(), true), MeasureItemCount);
    EXPECT_EQ(MeasureRowOf("Rise time"), -1);
}

} // namespace
