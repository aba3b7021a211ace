// Every call in data/texttables.txt: the keywords, ladder texts, parsers, masks and
// measure texts, each row a routine, its arguments and what it must give.
#include "datarows.h"
#include "text/formatmask.h"
#include "text/keywords.h"
#include "text/steplists.h"
#include "text/valuetext.h"
#include "textcase.h"

#include <QHash>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

namespace {

double number(const QString& text)
{
    if (text == QLatin1String("inf")) return std::numeric_limits<double>::infinity();
    if (text == QLatin1String("-inf")) return -std::numeric_limits<double>::infinity();
    if (text == QLatin1String("nan")) return std::nan("");
    return text.toDouble();
}

QString exact(double value)
{
    return QString::number(value, 'g', 17);
}

struct Routine {
    int arguments;
    std::function<QStringList(const QStringList&)> run;
    bool givesNumber = false; // the first result is compared as a double
};

using Text = QString (*)(const QString&);
using Keyword = QString (*)(const QString&, int);
using Parser = double (*)(const QString&);
using Parts = MeasureText (*)(double);

Routine text(Text f)
{
    return {1, [f](const QStringList& a) { return QStringList{f(a[0])}; }};
}

Routine keyword(Keyword f)
{
    return {2, [f](const QStringList& a) { return QStringList{f(a[0], a[1].toInt())}; }};
}

// The parser must set the flag either way, so it runs once from each state.
Routine parser(Parser f)
{
    return {1,
            [f](const QStringList& a) {
                ValueValid = false;
                const double value = f(a[0]);
                const bool fromFalse = ValueValid;
                ValueValid = true;
                f(a[0]);
                if (ValueValid != fromFalse) return QStringList{exact(value), QStringLiteral("unsteady")};
                return QStringList{exact(value), QLatin1String(fromFalse ? "valid" : "invalid")};
            },
            true};
}

Routine parts(Parts f)
{
    return {1, [f](const QStringList& a) {
                const MeasureText m = f(number(a[0]));
                return QStringList{m.number, QString::number(m.unitIndex), m.text()};
            }};
}

const QHash<QString, Routine>& routines()
{
    static const QHash<QString, Routine> all = [] {
        QHash<QString, Routine> r;
#define KEYWORD(name) r.insert(QStringLiteral(#name), keyword(name))
        KEYWORD(RunStateToWire);
        KEYWORD(RunStateFromReply);
        KEYWORD(OnOffToWire);
        KEYWORD(OnOffFromReply);
        KEYWORD(HfRejectFromReply);
        KEYWORD(SamplingToWire);
        KEYWORD(SamplingFromReply);
        KEYWORD(AcquisitionToWire);
        KEYWORD(AcquisitionFromReply);
        KEYWORD(DisplayTypeToWire);
        KEYWORD(DisplayTypeFromReply);
        KEYWORD(GridToWire);
        KEYWORD(GridFromReply);
        KEYWORD(TriggerTypeToWire);
        KEYWORD(TriggerTypeFromReply);
        KEYWORD(SweepToWire);
        KEYWORD(SweepFromReply);
        KEYWORD(CouplingToWire);
        KEYWORD(CouplingFromReply);
        KEYWORD(EdgeSlopeToWire);
        KEYWORD(EdgeSlopeFromReply);
        KEYWORD(PulseModeToWire);
        KEYWORD(PulseModeFromReply);
        KEYWORD(SlopeModeToWire);
        KEYWORD(SlopeModeFromReply);
        KEYWORD(VideoPolarityToWire);
        KEYWORD(VideoPolarityFromReply);
        KEYWORD(VideoSyncToWire);
        KEYWORD(VideoSyncFromReply);
        KEYWORD(DurationQualifierFromReply);
        KEYWORD(TriggerSourceToWire);
        KEYWORD(TriggerSourceFromReply);
#undef KEYWORD
#define TEXT(name) r.insert(QStringLiteral(#name), text(name))
        TEXT(TimeText3);
        TEXT(TimeText4);
        TEXT(TimeText5);
        TEXT(VoltText3);
        TEXT(FreqText);
        TEXT(DbText);
        TEXT(PercentText);
        TEXT(PercentTextOf100);
        TEXT(TimeFormatToWire);
        TEXT(TimeFormatFromReply);
        TEXT(VideoStandardToWire);
        TEXT(VideoStandardFromReply);
        TEXT(LaThresholdFromReply);
        TEXT(AltSourcesFromReply);
        TEXT(StripAtLineFeed);
#undef TEXT
        r.insert("ParseTimeText", parser(ParseTimeText));
        r.insert("ParseVoltText", parser(ParseVoltText));
        r.insert("ParseMeasureVoltText", parser(ParseMeasureVoltText));
        r.insert("ParseFreqText", parser(ParseFreqText));
        r.insert("ParsePercentText", parser(ParsePercentText));
        r.insert("MeasureVoltParts", parts(MeasureVoltParts));
        r.insert("MeasureTimeParts", parts(MeasureTimeParts));
        r.insert("MeasureFreqParts", parts(MeasureFreqParts));
        r.insert("MeasureRatioParts", parts(MeasureRatioParts));
        r.insert("TimeTextToExponent",
                 {1, [](const QStringList& a) {
                      const QString text = TimeTextToExponent(a[0]);
                      return QStringList{text, QLatin1String(ValueValid ? "valid" : "invalid")};
                  }});
        r.insert("Val", {1, [](const QStringList& a) { return QStringList{exact(Val(a[0]))}; }, true});
        r.insert("LevelDivText",
                 {2, [](const QStringList& a) { return QStringList{LevelDivText(a[0], a[1])}; }});
        r.insert("ProbeScaleToOneX",
                 {2, [](const QStringList& a) { return QStringList{ProbeScaleToOneX(a[0], a[1])}; }});
        r.insert("ExactTimeText",
                 {1, [](const QStringList& a) { return QStringList{ExactTimeText(number(a[0]))}; }});
        r.insert("ExactTimeWireText",
                 {1, [](const QStringList& a) { return QStringList{ExactTimeWireText(number(a[0]))}; }});
        r.insert("FormatMask",
                 {2, [](const QStringList& a) { return QStringList{FormatMask(number(a[0]), a[1])}; }});
        r.insert("AcLineText",
                 {1, [](const QStringList& a) { return QStringList{AcLineText(a[0].toInt())}; }});
        r.insert("BandwidthClassOf", {1, [](const QStringList& a) {
                                          return QStringList{QString::number(BandwidthClassOf(a[0].toInt()))};
                                      }});
        r.insert("FormatMaskScaled",
                 {3, [](const QStringList& a) {
                      return QStringList{FormatMaskScaled(number(a[0]), a[1].toInt(), a[2])};
                  }});
        r.insert("FormatMaskSingle", {2, [](const QStringList& a) {
                                          return QStringList{FormatMaskSingle(float(number(a[0])), a[1])};
                                      }});
        r.insert("GeneralFormatSingle", {1, [](const QStringList& a) {
                                             return QStringList{GeneralFormatSingle(float(number(a[0])))};
                                         }});
        r.insert("GeneralFormat",
                 {1, [](const QStringList& a) { return QStringList{GeneralFormat(number(a[0]))}; }});
        return r;
    }();
    return all;
}

TEST(TextTables, EveryRowGivesItsResult)
{
    int rows = 0;
    for (const QStringList& fields : DataRows("text/data/texttables.txt")) {
        SCOPED_TRACE(fields.join(u' ').toStdString());
        const auto found = routines().constFind(fields[0]);
        ASSERT_NE(found, routines().constEnd()) << "unknown routine";
        const Routine& routine = *found;
        ASSERT_GT(fields.size(), 1 + routine.arguments);
        const QStringList expected = fields.mid(1 + routine.arguments);
        const QStringList actual = routine.run(fields.mid(1, routine.arguments));
        ASSERT_EQ(actual.size(), expected.size());
        for (qsizetype i = 0; i < actual.size(); ++i) {
            if (i == 0 && routine.givesNumber)
                EXPECT_DOUBLE_EQ(actual[0].toDouble(), number(expected[0]));
            else
                EXPECT_EQ(actual[i], expected[i]);
        }
        ++rows;
    }
    EXPECT_GE(rows, 500) << "the table file was read whole";
}

TEST(MeasureText, FullTextsMatchTheirParts)
{
    EXPECT_EQ(MeasureVoltText(0), QStringLiteral("0.000uV"));
    EXPECT_EQ(MeasureTimeText(-0.5), QStringLiteral("-500.000ms"));
    EXPECT_EQ(MeasureFreqText(-1), QStringLiteral("???.?Hz"));
    EXPECT_EQ(MeasureRatioText(0.25), QStringLiteral("25.00%"));
    EXPECT_EQ(MeasureFreqParts(1000).unit, QStringLiteral("KHz"));
}

} // namespace
