// Doubles as decimal digits, exactly: the digits are those of the C library's "%.*f" and "%.*E", but a value
// that lies exactly halfway between two texts goes away from zero (2.5 with no decimals is 3), whatever the
// rounding mode.
#pragma once

namespace zephyl {

constexpr int DECIMALS_LIMIT = 16;
constexpr int DECIMAL_TEXT_SIZE = 40;

// "%.*f" into DECIMAL_TEXT_SIZE bytes. value finite, with |value| * 10^decimals below 1e18. Returns the
// length.
int print_fixed(char* out, double value, int decimals);

// The part of "%.*E" in front of the "E", into DECIMAL_TEXT_SIZE bytes. value finite. Returns the exponent.
int print_mantissa(char* out, double value, int decimals);

// Removes the zeros at the end of a text with a point, and a point left at the end.
void strip_zeros(char* text);

}  // namespace zephyl
