#include "text/valuetextparse.h"

#include "text/formatmask.h"

#include <charconv>
#include <cmath>
#include <span>
#include <string>

bool ValueValid = false;

namespace {

struct Prefix {
    char16_t letter;
    double factor; // the value is multiplied by it, or divided when `divides`
    bool divides;
    const char* exponent; // TimeTextToExponent's suffix
};

struct UnitRule {
    char16_t unit;
    std::span<const Prefix> prefixes;
};

// Small prefixes divide by an exact power of ten, so "10.00ns" reads as exactly
// the double nearest 1e-08, as the text "1e-08" would.
constexpr Prefix FreqPrefixes[] = {
    {u'G', 1e9, false, ""}, {u'M', 1e6, false, ""}, {u'k', 1e3, false, ""}, {u'm', 1e3, true, ""}};
constexpr Prefix VoltPrefixes[] = {{u'p', 1e12, true, ""},
                                   {u'n', 1e9, true, ""},
                                   {u'u', 1e6, true, ""},
                                   {u'm', 1e3, true, ""},
                                   {u'k', 1e3, false, ""}};
constexpr Prefix MeasureVoltPrefixes[] = {
    {u'u', 1e6, true, ""}, {u'm', 1e3, true, ""}, {u'k', 1e3, false, ""}, {u'M', 1e6, false, ""}};
constexpr Prefix TimePrefixes[] = {
    {u'p', 1e12, true, "E-12"}, {u'n', 1e9, true, "E-9"}, {u'u', 1e6, true, "E-6"}, {u'm', 1e3, true, "E-3"}};

constexpr UnitRule PercentRule{u'%', {}};
constexpr UnitRule FreqRule{u'H', FreqPrefixes};
constexpr UnitRule VoltRule{u'V', VoltPrefixes};
constexpr UnitRule MeasureVoltRule{u'V', MeasureVoltPrefixes};
constexpr UnitRule TimeRule{u's', TimePrefixes};

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// Reads the classic leading number, blanks and tabs skipped, into the
// "-12.5e3" form that std::from_chars takes; empty when there is no digit.
class NumberScanner {
  public:
    explicit NumberScanner(const QString& text) : text(text) {}

    std::string scan()
    {
        sign();
        if (!mantissa()) return {};
        exponent();
        return number;
    }

  private:
    QChar peek()
    {
        while (i < text.size() && (text[i] == u' ' || text[i] == u'\t'))
            ++i;
        return i < text.size() ? text[i] : QChar();
    }

    void take(QChar c)
    {
        number += static_cast<char>(c.unicode());
        ++i;
    }

    void sign()
    {
        if (peek() == u'-')
            take(u'-');
        else if (peek() == u'+')
            ++i;
    }

    bool mantissa()
    {
        bool digits = false;
        bool point = false;
        for (QChar c = peek(); isAsciiDigit(c) || (c == u'.' && !point); c = peek()) {
            digits = digits || c != u'.';
            point = point || c == u'.';
            take(c);
        }
        return digits;
    }

    // "E" or "D", an optional sign and at least one digit; otherwise nothing is taken.
    void exponent()
    {
        if (!QStringLiteral("EeDd").contains(peek())) return;
        const std::string mantissaOnly = number;
        const qsizetype mark = i;
        number += 'e';
        ++i;
        if (peek() == u'-' || peek() == u'+') take(peek());
        bool digits = false;
        for (; isAsciiDigit(peek()); digits = true)
            take(peek());
        if (!digits) {
            number = mantissaOnly;
            i = mark;
        }
    }

    const QString& text;
    qsizetype i = 0;
    std::string number;
};

const Prefix* findPrefix(const UnitRule& rule, QChar c)
{
    for (const Prefix& p : rule.prefixes)
        if (p.letter == c.unicode()) return &p;
    return nullptr;
}

struct SplitText {
    QString number;
    const Prefix* prefix = nullptr;
    bool valid = false;
};

// The number part of a unit text and the prefix before its unit letter.
SplitText splitUnitText(const QString& raw, const UnitRule& rule)
{
    SplitText split;
    if (raw.contains(u'>') || raw.contains(u'*') || raw.contains(u'<')) return split;
    const QString text = StripAtLineFeed(raw);
    if (text == NoMeasureText) return split;
    const qsizetype unit = text.indexOf(QChar(rule.unit));
    if (unit < 0) {
        split = {text, nullptr, true};
    } else if (unit > 0 && findPrefix(rule, text[unit - 1])) {
        split = {text.left(unit - 1), findPrefix(rule, text[unit - 1]), true};
    } else if (unit > 0 && isAsciiDigit(text[unit - 1])) {
        split = {text.left(unit), nullptr, true};
    }
    return split;
}

double scaled(double value, const Prefix* prefix)
{
    if (!prefix) return value;
    return prefix->divides ? value / prefix->factor : value * prefix->factor;
}

double parseUnitText(const QString& text, const UnitRule& rule, double divisor = 1)
{
    const SplitText split = splitUnitText(text, rule);
    bool inRange = true;
    const double value = split.valid ? Val(split.number, &inRange) : 0;
    const double result = scaled(value, split.prefix) / divisor;
    ValueValid = split.valid && inRange && std::isfinite(result);
    return ValueValid ? result : 0;
}

} // namespace

QString StripAtLineFeed(const QString& text)
{
    const qsizetype lineFeed = text.indexOf(u'\n');
    return lineFeed < 0 ? text : text.left(lineFeed);
}

double Val(const QString& text, bool* inRange)
{
    const std::string number = NumberScanner(text).scan();
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    const bool ok = result.ec == std::errc();
    if (inRange) *inRange = ok || number.empty();
    return ok ? value : 0;
}

double ParsePercentText(const QString& text)
{
    return parseUnitText(text, PercentRule, 100);
}

double ParseFreqText(const QString& text)
{
    return parseUnitText(text, FreqRule);
}

double ParseVoltText(const QString& text)
{
    return parseUnitText(text, VoltRule);
}

double ParseMeasureVoltText(const QString& text)
{
    return parseUnitText(text, MeasureVoltRule);
}

double ParseTimeText(const QString& text)
{
    return parseUnitText(text, TimeRule);
}

QString TimeTextToExponent(const QString& text)
{
    const SplitText split = splitUnitText(text, TimeRule);
    bool inRange = true;
    const double value = split.valid ? Val(split.number, &inRange) : 0;
    ValueValid = split.valid && inRange;
    if (!ValueValid) return {};
    return FormatMask(value, QStringLiteral("0.000###########")) +
           (split.prefix ? split.prefix->exponent : "");
}
