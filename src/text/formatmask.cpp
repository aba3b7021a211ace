#include "text/formatmask.h"

#include "text/valuetextdecimal.h"

#include <algorithm>
#include <cmath>

namespace {

struct MaskLayout {
    QString prefix;
    QString suffix;
    int integerPlaces = 0; // "0" and "#" left of the point
    int integerZeros = 0;
    bool point = false;
    int fractionPlaces = 0;
    int fractionRequired = 0; // places up to the last "0" after the point
    bool percent = false;
    bool exponent = false;
    QChar exponentLetter;
    bool exponentAlwaysSigned = false;
    int exponentDigits = 0;
};

enum class MaskPart { Prefix, Integer, Fraction, Exponent, Suffix };

bool startsExponent(const QString& mask, qsizetype i)
{
    const QChar c = mask[i];
    return (c == u'E' || c == u'e') && i + 1 < mask.size() && (mask[i + 1] == u'+' || mask[i + 1] == u'-');
}

void addPlaceholder(MaskLayout& m, MaskPart part, QChar c)
{
    if (part == MaskPart::Integer) {
        ++m.integerPlaces;
        m.integerZeros += c == u'0';
    } else if (part == MaskPart::Fraction) {
        ++m.fractionPlaces;
        if (c == u'0') m.fractionRequired = m.fractionPlaces;
    } else {
        m.exponentDigits += 1;
    }
}

void addLiteral(MaskLayout& m, MaskPart& part, QChar c)
{
    m.percent = m.percent || c == u'%';
    if (part == MaskPart::Prefix) {
        m.prefix += c;
    } else {
        m.suffix += c;
        part = MaskPart::Suffix;
    }
}

MaskLayout parseMask(const QString& mask)
{
    MaskLayout m;
    MaskPart part = MaskPart::Prefix;
    for (qsizetype i = 0; i < mask.size(); ++i) {
        const QChar c = mask[i];
        const bool placeholder = c == u'0' || c == u'#';
        const bool inNumber = part == MaskPart::Integer || part == MaskPart::Fraction;
        if (placeholder && part != MaskPart::Suffix) {
            if (part == MaskPart::Prefix) part = MaskPart::Integer;
            addPlaceholder(m, part, c);
        } else if (c == u'.' && (part == MaskPart::Prefix || part == MaskPart::Integer)) {
            m.point = true;
            part = MaskPart::Fraction;
        } else if (inNumber && startsExponent(mask, i)) {
            m.exponent = true;
            m.exponentLetter = c;
            m.exponentAlwaysSigned = mask[++i] == u'+';
            part = MaskPart::Exponent;
        } else {
            addLiteral(m, part, c);
        }
    }
    return m;
}

// The digits of a rounded value laid out on the placeholders around the point.
QString placeDigits(const std::string& units, const MaskLayout& m)
{
    const auto places = static_cast<size_t>(m.fractionPlaces);
    std::string padded = units;
    if (padded.size() < places + 1) padded.insert(0, places + 1 - padded.size(), '0');
    std::string integer = padded.substr(0, padded.size() - places);
    std::string fraction = padded.substr(padded.size() - places);
    if (integer == "0") integer.clear();
    if (integer.size() < static_cast<size_t>(m.integerZeros))
        integer.insert(0, static_cast<size_t>(m.integerZeros) - integer.size(), '0');
    while (fraction.size() > static_cast<size_t>(m.fractionRequired) && fraction.back() == '0')
        fraction.pop_back();
    const std::string text = m.point ? integer + "." + fraction : integer;
    return QString::fromLatin1(text.c_str());
}

QString exponentText(int exponent, const MaskLayout& m)
{
    QString sign =
        exponent < 0 ? QStringLiteral("-") : (m.exponentAlwaysSigned ? QStringLiteral("+") : QString());
    return m.exponentLetter + sign +
           QString::number(std::abs(exponent)).rightJustified(m.exponentDigits, u'0');
}

// Mantissa and exponent: as many integer digits as the mask has integer places.
QString scientificText(const DecimalText& d, const MaskLayout& m, bool& isZero)
{
    const int integerDigits = std::max(1, m.integerPlaces);
    int exponent = d.isZero() ? 0 : d.exponent - (integerDigits - 1);
    std::string units = d.shifted(-exponent).roundedUnits(m.fractionPlaces);
    if (units.size() > static_cast<size_t>(integerDigits + m.fractionPlaces)) {
        ++exponent; // 9.996 with "0.00E+00" carries into 1.00E+01
        units = d.shifted(-exponent).roundedUnits(m.fractionPlaces);
    }
    isZero = units == "0";
    MaskLayout mantissa = m;
    mantissa.integerZeros = std::max(1, m.integerZeros);
    return placeDigits(units, mantissa) + exponentText(exponent, m);
}

QString formatDecimal(DecimalText d, const QString& mask)
{
    const MaskLayout m = parseMask(mask);
    if (m.percent) d = d.shifted(2);
    bool isZero = false;
    QString number;
    if (m.exponent) {
        number = scientificText(d, m, isZero);
    } else {
        const std::string units = d.roundedUnits(m.fractionPlaces);
        isZero = units == "0";
        number = placeDigits(units, m);
    }
    const QString sign = d.negative && !isZero ? QStringLiteral("-") : QString();
    return sign + m.prefix + number + m.suffix;
}

} // namespace

QString FormatMask(double value, const QString& mask)
{
    return FormatMaskScaled(value, 0, mask);
}

QString FormatMaskSingle(float value, const QString& mask)
{
    if (!std::isfinite(value)) return OverflowText;
    return formatDecimal(DecimalText::ofSingle(value), mask);
}

QString FormatMaskScaled(double value, int power, const QString& mask)
{
    if (!std::isfinite(value)) return OverflowText;
    return formatDecimal(DecimalText::of(value).shifted(power), mask);
}

QString GeneralFormat(double value)
{
    if (!std::isfinite(value)) return QStringLiteral("0");
    return QString::fromLatin1(DecimalText::of(value).plainText().c_str());
}

QString GeneralFormatSingle(float value)
{
    if (!std::isfinite(value)) return QStringLiteral("0");
    return QString::fromLatin1(DecimalText::ofSingle(value).roundedSignificant(7).plainText().c_str());
}
