#include "persistence/state_numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zephyl {

namespace {

constexpr int INDEX_CHARACTERS = 4;
constexpr int INDEX_LIMIT = 1000;

// Zeros at the mantissa's end go, but for the digit behind the point.
void strip_mantissa(char* mantissa) {
  char* end = mantissa + std::strlen(mantissa);
  while (end[-1] == '0' && end[-2] != '.') *--end = 0;
}

// A whole number as strtol reads it, clamped to an int.
int read_integer(const char* text) {
  const long value = std::strtol(text, nullptr, 10);
  return static_cast<int>(std::clamp(value, -2000000000L, 2000000000L));
}

}  // namespace

const char* format_state_number(double value) {
  static char text[40];
  if (value == 0.0) return "0.0";
  std::snprintf(text, sizeof text, "%.13e", value);
  char* const mark = std::strchr(text, 'e');
  if (!mark) return "0.0";  // no number is saved as none
  const int exponent = read_integer(mark + 1);
  *mark = 0;
  strip_mantissa(text);
  const std::size_t length = std::strlen(text);
  if (exponent != 0) std::snprintf(text + length, sizeof text - length, "e%d", exponent);
  return text;
}

int TFieldReader::read_index() {
  const char* const colon = std::strchr(at_, ':');
  const char* const end = colon ? colon : at_ + std::strlen(at_);
  const std::string digits(at_, std::min(end, at_ + INDEX_CHARACTERS));
  at_ = colon ? colon + 1 : end;
  const int index = read_integer(digits.c_str());
  return index >= 0 && index <= INDEX_LIMIT ? index : 0;
}

int TFieldReader::read_bounded(int low, int high, int otherwise) const {
  const int value = read_integer(at_);
  return value >= low && value <= high ? value : otherwise;
}

double TFieldReader::read_real() const {
  const double value = std::strtod(at_, nullptr);
  return std::isfinite(value) ? value : 0.0;
}

double TFieldReader::read_real_of_pair() {
  const double value = read_real();
  const char* const comma = std::strchr(at_, ',');
  at_ = comma ? comma + 1 : at_ + std::strlen(at_);
  return value;
}

}  // namespace zephyl
