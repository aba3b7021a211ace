#pragma once
// The decimal digits of a binary floating-point value. Every number text of the
// program is rounded here, on the shortest text that reads back to the same
// value, so a value that reads 2.675 rounds to 2.68 the way a person expects,
// not to 2.67 as its binary neighbour 2.67499999... would.

#include <string>

struct DecimalText {
    bool negative = false;
    std::string digits = "0"; // significant digits without leading zeros; "0" for zero
    int exponent = 0;         // power of ten of the first digit

    // Shortest round-trip digits. The value must be finite.
    static DecimalText of(double value);
    static DecimalText ofSingle(float value);

    bool isZero() const { return digits == "0"; }
    // The same digits times 10^power: exact, unlike a binary multiplication.
    DecimalText shifted(int power) const;
    // round(|value| * 10^decimals), half away from zero, as integer digits ("0" when nothing is left).
    std::string roundedUnits(int decimals) const;
    // At most `count` significant digits, half away from zero, trailing zeros dropped.
    DecimalText roundedSignificant(int count) const;
    // Plain decimal text without exponent: "-0.00123", "1200".
    std::string plainText() const;
};
