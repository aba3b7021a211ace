#pragma once
// One measure window's record: the eighteen measurements of a channel as text,
// each with its limits and the result of its last judgement, and the legend of
// the reading. Slots are not in the list's row order: the table below maps one
// to the other, so moving a row never moves stored limits.

#include <QString>
#include <array>

struct MeasureItem {
    QString Value; // as shown, with its unit, or "9.9E+37" when the instrument had none
    bool Enabled = false;
    double OverLimit = 0; // base units: volts, seconds, hertz, or a fraction for percent
    double UnderLimit = 0;
    QString Judgement;
};

inline constexpr int MeasureItemCount = 18;

struct MeasureRecord {
    std::array<MeasureItem, MeasureItemCount> Items; // in slot order
    QString Legend;
    bool HasData = false;
    int Channel = 0; // 1 to 4; 0 before a reading
    bool Shown = false;
    QString Title;
};

inline constexpr int MeasureRecordCount = 18;
extern std::array<MeasureRecord, MeasureRecordCount> MeasureRecords;
// The value texts of the last reading, in slot order.
extern std::array<QString, MeasureItemCount> CurrentMeasures;
extern QString CurrentMeasureLegend;

// How a family turns limits and values between text and number.
enum class MeasureFamily { Volt, Frequency, Time, Percent };

struct MeasureItemInfo {
    const char* english;
    const char16_t* chinese;
    int slot;
    const char* query; // the query's piece behind ":MEASURE", such as ":VPP"
    MeasureFamily family;
    bool replyInPercent = false; // the duty cycles come in percent, the shoots as fractions
};

// The eighteen items in row order (the list, the dialog's type list).
extern const std::array<MeasureItemInfo, MeasureItemCount> MeasureItems;
// The row of an English name ("Rise Time"); -1 when there is none.
int MeasureRowOf(const QString& english);
QString MeasureItemName(int row, int language);

void ResetMeasureRecords();
