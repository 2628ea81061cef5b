#include "engine/number_buffer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "engine/base_integer.h"
#include "engine/errors.h"
#include "engine/state.h"

namespace zephyl {

bool append_to_number(TNumberBuffer& buffer, char character) {
  if (buffer.length >= NUMBER_TEXT_LIMIT) {
    report_error(ERR_MEMORY_LIMIT);
    return false;
  }
  buffer.text[buffer.length++] = character;
  return true;
}

// --- Decimals

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// A decimal as digits without a point, times a power of ten.
struct TDecimal {
  char digits[NUMBER_TEXT_LIMIT];  // without leading zeros
  int count = 0;
  int exponent = 0;
  std::uint64_t mantissa = 0;  // the digits as a number, while there are few enough of them
};

constexpr int MANTISSA_DIGITS = 15;  // every number of so many digits is a double

void add_digit(TDecimal& decimal, char digit) {
  if (decimal.count == 0 && digit == '0') return;
  if (decimal.count == NUMBER_TEXT_LIMIT) {
    ++decimal.exponent;
    return;
  }
  decimal.digits[decimal.count++] = digit;
  if (decimal.count <= MANTISSA_DIGITS)
    decimal.mantissa = decimal.mantissa * 10 + static_cast<std::uint64_t>(digit - '0');
}

// Each digit read moves the point by `step`.
const char* scan_digits(const char* at, TDecimal& decimal, int step) {
  for (; is_digit(*at); ++at) {
    add_digit(decimal, *at);
    decimal.exponent += step;
  }
  return at;
}

// Returns where the digits end; null if there is none.
const char* scan_mantissa(const char* text, TDecimal& decimal) {
  const char* const point = scan_digits(text, decimal, 0);
  if (*point != '.') return point == text ? nullptr : point;
  const char* const end = scan_digits(point + 1, decimal, -1);
  return end == text + 1 ? nullptr : end;
}

// An exponent mark without digits behind it isn't part of the number.
const char* scan_exponent(const char* mark, TDecimal& decimal) {
  constexpr int exponent_limit = 100000;  // beyond the range of a double with any digits in front
  if (*mark != 'e' && *mark != 'E') return mark;
  const bool negative = mark[1] == '-';
  const char* at = mark + (negative || mark[1] == '+' ? 2 : 1);
  if (!is_digit(*at)) return mark;
  int exponent = 0;
  for (; is_digit(*at); ++at) exponent = std::min(exponent * 10 + (*at - '0'), exponent_limit);
  decimal.exponent += negative ? -exponent : exponent;
  return at;
}

// Both factors are exact doubles, so the one rounding of the product or quotient is the right one
// (Clinger 1990, "How to Read Floating Point Numbers Accurately").
bool value_by_one_operation(const TDecimal& decimal, double& value) {
  constexpr double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                               1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  constexpr int highest = static_cast<int>(sizeof powers / sizeof powers[0]) - 1;
  if (decimal.count > MANTISSA_DIGITS || std::abs(decimal.exponent) > highest) return false;
  const double digits = static_cast<double>(decimal.mantissa);
  value = decimal.exponent < 0 ? digits / powers[-decimal.exponent] : digits * powers[decimal.exponent];
  return true;
}

// strtod knows the locale's decimal point only; a text without any point reads the same everywhere.
double value_by_library(const TDecimal& decimal) {
  char text[NUMBER_TEXT_LIMIT + 16];
  std::memcpy(text, decimal.digits, static_cast<std::size_t>(decimal.count));
  std::snprintf(text + decimal.count, sizeof text - static_cast<std::size_t>(decimal.count), "e%d",
                decimal.exponent);
  return std::strtod(text, nullptr);
}

}  // namespace

const char* read_decimal(const char* text, double& value) {
  TDecimal decimal;
  const char* const mantissa_end = scan_mantissa(text, decimal);
  value = 0.0;
  if (!mantissa_end) return text;
  const char* const end = scan_exponent(mantissa_end, decimal);
  if (decimal.count > 0 && !value_by_one_operation(decimal, value)) value = value_by_library(decimal);
  return end;
}

// --- The buffer's value

namespace {

bool refuse(TError error, double& value, const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
  report_error(error, file, line);
  value = 0.0;
  return false;
}

bool take_decimal(TNumberBuffer& buffer, double& value) {
  if (buffer.text[0] == 'e') {
    std::memmove(buffer.text + 1, buffer.text, static_cast<std::size_t>(buffer.length) + 1);
    buffer.text[0] = '1';
  }
  const char* const end = read_decimal(buffer.text, value);
  if (std::isinf(value)) return refuse(ERR_OVERFLOW, value);
  if (*end != 0) return refuse(ERR_SYNTAX, value);
  return true;
}

// The exponent letter reads as the hexadecimal digit; small letters else are suffixes.
int digit_value(char c) {
  if (is_digit(c)) return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return c == 'e' ? 14 : -1;
}

// The radix that a suffix letter names, 0 for another character.
int radix_of_suffix(char c) {
  switch (c) {
    case 'b':
      return 2;
    case 'o':
      return 8;
    case 'd':
      return 10;
    case 'h':
      return 16;
    default:
      return 0;
  }
}

int radix_of_setting() {
  switch (settings.baseType) {
    case U_BIN:
      return 2;
    case U_OCT:
      return 8;
    case U_HEX:
      return 16;
    default:
      return 10;
  }
}

bool take_integer(const TNumberBuffer& buffer, double& value) {
  constexpr std::uint64_t highest = 0xFFFFFFFFu;
  const int suffix = radix_of_suffix(buffer.text[buffer.length - 1]);
  const int length = buffer.length - (suffix ? 1 : 0);
  const int radix = suffix ? suffix : radix_of_setting();
  if (length == 0) return refuse(ERR_SYNTAX, value);
  std::uint64_t pattern = 0;
  for (int i = 0; i < length; ++i) {
    const int digit = digit_value(buffer.text[i]);
    if (digit < 0 || digit >= radix) return refuse(ERR_SYNTAX, value);
    pattern =
        std::min(pattern * static_cast<std::uint64_t>(radix) + static_cast<std::uint64_t>(digit), highest);
  }
  value = sign_extend_base_bits(static_cast<std::uint32_t>(pattern));
  return true;
}

}  // namespace

bool take_number(TNumberBuffer& buffer, double& value) {
  buffer.text[buffer.length] = 0;
  const bool read = state.calcMode == BASE_MODE ? take_integer(buffer, value) : take_decimal(buffer, value);
  buffer.length = 0;
  return read;
}

}  // namespace zephyl
