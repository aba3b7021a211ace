// The digit-ladder formatters: the first rung whose threshold the value reaches
// picks the mask and the unit prefix.

#include "text/valuetextladder.h"

#include "text/formatmask.h"
#include "text/valuetextparse.h"

#include <cmath>
#include <limits>
#include <span>

namespace {

// The thresholds of these ladders are single-precision numbers: 99.999 is
// really 99.9990005..., so a value of exactly 99.999 lands one rung lower.
constexpr double single(double threshold)
{
    return static_cast<float>(threshold);
}

struct Rung {
    double threshold;
    const char* mask;
    int power; // the value is shown times 10^power
    const char* unit;
};

constexpr double Never = std::numeric_limits<double>::infinity();

struct Ladder {
    std::span<const Rung> rungs;
    bool mirrored; // negative values walk the same rungs against the negated thresholds
    double overflowFrom;
    double negativeOverflowFrom; // v <= -this overflows
    const char* overflow;
    const char* negativeOverflow;
    const char* fallback;
};

QString rungText(double value, const Rung& rung)
{
    return FormatMaskScaled(value, rung.power, QLatin1String(rung.mask)) + QLatin1String(rung.unit);
}

QString climb(const QString& text, const Ladder& ladder)
{
    const double v = Val(StripAtLineFeed(text));
    if (v >= ladder.overflowFrom) return QLatin1String(ladder.overflow);
    if (v <= -ladder.negativeOverflowFrom) return QLatin1String(ladder.negativeOverflow);
    for (const Rung& rung : ladder.rungs)
        if (v >= rung.threshold) return rungText(v, rung);
    for (const Rung& rung : ladder.rungs)
        if (ladder.mirrored && v <= -rung.threshold) return rungText(v, rung);
    return QLatin1String(ladder.fallback);
}

// Five unit prefixes of three rungs each, from seconds down to picoseconds.
template <const char* const* Masks> struct TimeRungs {
    static constexpr Rung rungs[] = {
        {single(99.999), Masks[0], 0, "s"},       {single(9.9999), Masks[1], 0, "s"},
        {single(0.99999), Masks[2], 0, "s"},      {single(0.099999), Masks[0], 3, "ms"},
        {single(0.0099999), Masks[1], 3, "ms"},   {single(0.00099999), Masks[2], 3, "ms"},
        {single(9.9999e-05), Masks[0], 6, "us"},  {single(9.9999e-06), Masks[1], 6, "us"},
        {single(9.9999e-07), Masks[2], 6, "us"},  {single(9.9999e-08), Masks[0], 9, "ns"},
        {single(9.9999e-09), Masks[1], 9, "ns"},  {single(9.9999e-10), Masks[2], 9, "ns"},
        {single(9.9999e-11), Masks[0], 12, "ps"}, {single(9.9999e-12), Masks[1], 12, "ps"},
        {single(9.9999e-13), Masks[2], 12, "ps"},
    };
};

constexpr const char* Masks3[] = {"###", "##.0", "#.00"};
constexpr const char* Masks4[] = {"###.0", "##.00", "#.000"};
constexpr const char* Masks5[] = {"###.00", "##.000", "#.0000"};

constexpr Ladder timeLadder(std::span<const Rung> rungs, const char* fallback)
{
    return {rungs, true, Never, Never, "", "", fallback};
}

constexpr Rung VoltRungs[] = {
    {single(999990), "#.00", -6, "MV"},    {single(99999), "###", -3, "kV"},
    {single(9999.9), "##.0", -3, "kV"},    {single(999.99), "#.00", -3, "kV"},
    {single(99.999), "###", 0, "V"},       {single(9.9999), "##.0", 0, "V"},
    {single(0.99999), "#.00", 0, "V"},     {single(0.099999), "###", 3, "mV"},
    {single(0.0099999), "##.0", 3, "mV"},  {single(0.00099999), "#.00", 3, "mV"},
    {single(9.9999e-05), "###", 6, "uV"},  {single(9.9999e-06), "##.0", 6, "uV"},
    {single(9.9999e-07), "#.00", 6, "uV"},
};
// The megavolt rung serves positive values only: -999990 and below overflow at once.
constexpr Ladder VoltLadder{VoltRungs, true, single(9999900), single(999990), "??.?V", "??.?V", "0.00uV"};

// Frequency thresholds stay double: they carry more digits than a single holds.
constexpr Rung FreqRungs[] = {
    {99999999000, "#000.0", -9, "GHz"},  {9999999900, "#00.00", -9, "GHz"},
    {999999990, "#0.000", -9, "GHz"},    {99999999, "#000.0", -6, "MHz"},
    {9999999.9, "#00.00", -6, "MHz"},    {999999.99, "#0.000", -6, "MHz"},
    {99999.999, "#000.0", -3, "kHz"},    {9999.9999, "#00.00", -3, "kHz"},
    {999.99999, "#0.000", -3, "kHz"},    {99.999999, "#000.0", 0, "Hz"},
    {9.9999999, "#00.00", 0, "Hz"},      {0.99999999, "#0.000", 0, "Hz"},
    {0.099999999, "#000.0", 3, "mHz"},   {0.0099999999, "#00.00", 3, "mHz"},
    {0.00099999999, "#0.000", 3, "mHz"},
};
constexpr Ladder FreqLadder{FreqRungs, false, 999999990000, Never, "??.???", "", "??.???"};

constexpr Rung DbRungs[] = {
    {single(99.999), "#000.0dB", 0, ""},
    {single(9.9999), "#00.0dB", 0, ""},
    {single(9.9999e-07), "#0.00dB", 0, ""},
};
constexpr Ladder DbLadder{DbRungs, true, single(9999.9), single(9999.9), "****dB", "-****dB", "0.00dB"};

} // namespace

QString TimeText3(const QString& text)
{
    return climb(text, timeLadder(TimeRungs<Masks3>::rungs, "0.00s"));
}

QString TimeText4(const QString& text)
{
    return climb(text, timeLadder(TimeRungs<Masks4>::rungs, "0.000s"));
}

QString TimeText5(const QString& text)
{
    return climb(text, timeLadder(TimeRungs<Masks5>::rungs, "0.0000s"));
}

QString VoltText3(const QString& text)
{
    return climb(text, VoltLadder);
}

QString FreqText(const QString& text)
{
    return climb(text, FreqLadder);
}

QString DbText(const QString& text)
{
    return climb(text, DbLadder);
}
