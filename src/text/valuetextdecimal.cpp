#include "text/valuetextdecimal.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace {

// Adds one to a text of decimal digits; "999" becomes "1000".
void incrementDigits(std::string& digits)
{
    for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        if (*it != '9') {
            ++*it;
            return;
        }
        *it = '0';
    }
    digits.insert(digits.begin(), '1');
}

// Reads the "d.ddde+XX" form that std::to_chars writes in scientific notation.
DecimalText fromScientific(const char* first, const char* last, bool negative)
{
    DecimalText d;
    const std::string text(first, last);
    const auto e = text.find('e');
    d.digits.clear();
    for (char c : text.substr(0, e))
        if (c != '.') d.digits += c;
    d.exponent = std::atoi(text.c_str() + e + 1);
    while (d.digits.size() > 1 && d.digits.back() == '0')
        d.digits.pop_back();
    d.negative = negative && !d.isZero();
    if (d.isZero()) d.exponent = 0;
    return d;
}

template <typename T> DecimalText shortestOf(T value)
{
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific);
    return fromScientific(buffer, result.ptr, std::signbit(value));
}

} // namespace

DecimalText DecimalText::of(double value)
{
    return shortestOf(value);
}

DecimalText DecimalText::ofSingle(float value)
{
    return shortestOf(value);
}

DecimalText DecimalText::shifted(int power) const
{
    DecimalText d = *this;
    if (!d.isZero()) d.exponent += power;
    return d;
}

std::string DecimalText::roundedUnits(int decimals) const
{
    const long keep = static_cast<long>(exponent) + 1 + decimals;
    if (isZero() || keep < 0) return "0";
    if (keep == 0) return digits[0] >= '5' ? "1" : "0";
    std::string units = digits.substr(0, static_cast<size_t>(keep));
    units.append(static_cast<size_t>(keep) - units.size(), '0');
    if (static_cast<size_t>(keep) < digits.size() && digits[static_cast<size_t>(keep)] >= '5')
        incrementDigits(units);
    return units;
}

DecimalText DecimalText::roundedSignificant(int count) const
{
    if (static_cast<int>(digits.size()) <= count) return *this;
    DecimalText d = *this;
    d.digits = digits.substr(0, static_cast<size_t>(count));
    if (digits[static_cast<size_t>(count)] >= '5') {
        incrementDigits(d.digits);
        if (static_cast<int>(d.digits.size()) > count) {
            d.digits.pop_back();
            ++d.exponent;
        }
    }
    while (d.digits.size() > 1 && d.digits.back() == '0')
        d.digits.pop_back();
    return d;
}

std::string DecimalText::plainText() const
{
    std::string text = negative ? "-" : "";
    if (exponent < 0) return text + "0." + std::string(static_cast<size_t>(-exponent - 1), '0') + digits;
    const auto integerDigits = static_cast<size_t>(exponent) + 1;
    if (digits.size() <= integerDigits)
        return text + digits + std::string(integerDigits - digits.size(), '0');
    return text + digits.substr(0, integerDigits) + "." + digits.substr(integerDigits);
}
