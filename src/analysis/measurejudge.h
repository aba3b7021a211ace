#pragma once
// Judging a measure record against its limits, the texts of its rows, and the
// text file of its export.

#include "analysis/measurerecord.h"

#include <QStringList>

// A family's unit list (the limits' unit fields) and its number texts.
const QStringList& MeasureUnits(MeasureFamily family);
// A limit split in number and unit index into MeasureUnits.
struct LimitParts {
    QString number;
    int unitIndex = 0;
};
LimitParts SplitLimit(MeasureFamily family, double value);
// A limit as the list shows it: number and unit joined.
QString LimitText(MeasureFamily family, double value);
// The family's parser; sets ValueValid.
double ParseMeasureValue(MeasureFamily family, const QString& text);
// A reply to an item's query as the record keeps it: "9.9E+37" as it stands,
// any other through the family's text.
QString MeasureValueText(const MeasureItemInfo& item, const QString& reply);

// The result words: under, over, pass, fail.
struct JudgementWords {
    QString under, over, pass, fail;
};
JudgementWords JudgementWordsOf(int language);
// The result of one item: empty unless it has a value and is enabled.
QString JudgeItem(const MeasureItem& item, MeasureFamily family, const JudgementWords& words);

// One row of the list, in row order.
struct MeasureRow {
    QString name, value, under, over, result;
};
// Judges every item of record (their Judgement follows) and returns the rows.
std::array<MeasureRow, MeasureItemCount> JudgeMeasureRecord(MeasureRecord& record, int language);
// Whether every enabled item of a judged record passed.
bool AllEnabledPass(const MeasureRecord& record, int language);

// The export file's text: title, legend and eighteen lines in the export's own order.
QString MeasureExportText(const MeasureRecord& record);
