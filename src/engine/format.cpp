#include "engine/format.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "engine/base_integer.h"
#include "engine/decimal_text.h"
#include "engine/memory.h"
#include "engine/polar.h"
#include "engine/records.h"
#include "engine/state.h"

namespace zephyl {

namespace {

using TText = char[RESULT_TEXT_SIZE];

template <typename... TArguments>
void print(char* out, const char* form, TArguments... arguments) {
  std::snprintf(out, RESULT_TEXT_SIZE, form, arguments...);
}

// "1.5E20"; stripped: "1E20" instead of "1.0000E20".
void print_exponent_form(char* out, double value, int digits, bool stripped) {
  char mantissa[DECIMAL_TEXT_SIZE];
  const int exponent = print_mantissa(mantissa, value, digits);
  if (stripped) strip_zeros(mantissa);
  print(out, "%sE%d", mantissa, exponent);
}

// How many digits stand in front of the point; 12 for more than 11.
int whole_digits(double a) {
  int count = 1;
  for (double limit = 10.0; a >= limit && count < 12; limit *= 10.0) ++count;
  return count;
}

// The most decimals, up to 10, that leave at most 11 digits once zeros at the end are gone. Those are the
// decimals that fill up 11 digits: more of them can only show more digits, or zeros that go again. False if
// rounding gives a twelfth digit in front of the point, or the number is out of the range of this form.
bool print_short_form(char* out, double value) {
  constexpr int most_digits = 11;
  constexpr int most_decimals = 10;
  const double a = std::fabs(value);
  const int whole = whole_digits(a);
  if ((a != 0.0 && a < 0.001) || whole > most_digits) return false;
  const int length = print_fixed(out, value, std::min(most_decimals, most_digits - whole));
  const int sign = value < 0.0 ? 1 : 0;
  if (!std::strchr(out, '.') && length - sign > most_digits) return false;
  strip_zeros(out);
  return true;
}

void print_float(char* out, double value, int) {
  constexpr int exponent_form_digits = 10;
  if (!print_short_form(out, value)) print_exponent_form(out, value, exponent_form_digits, true);
}

void print_fixed_format(char* out, double value, int digits) {
  double limit = 1e12;
  for (int i = 0; i <= digits; ++i) limit *= 0.1;
  if (std::fabs(value) <= limit)
    print_fixed(out, value, digits);
  else
    print_exponent_form(out, value, digits, false);
}

void print_scientific(char* out, double value, int digits) { print_exponent_form(out, value, digits, false); }

// An exponent that 3 divides, with up to two digits moved in front of the point for it.
void print_engineering(char* out, double value, int digits) {
  char mantissa[DECIMAL_TEXT_SIZE];
  const int exponent = print_mantissa(mantissa, value, std::max(digits, 2));
  const int moved = ((exponent % 3) + 3) % 3;
  char* point = std::strchr(mantissa, '.');
  std::memmove(point, point + 1, static_cast<std::size_t>(moved));
  point[moved] = '.';
  if (point[moved + 1] == 0) point[moved] = 0;
  print(out, "%sE%d", mantissa, exponent - moved);
}

constexpr void (*real_printers[])(char*, double, int) = {print_float, print_fixed_format, print_scientific,
                                                         print_engineering};

void replace_marks(char* text, bool small) {
  char* point = settings.decimalMark == 1 ? std::strchr(text, '.') : nullptr;
  if (point) *point = ',';
  for (; *text; ++text)
    if (*text == 'E') *text = small ? GLYPH_EXPONENT : 'e';
}

}  // namespace

void format_real(char* out, double value, int format, int digits, bool small) {
  constexpr int format_count = sizeof real_printers / sizeof real_printers[0];
  if (format < 0 || format >= format_count || std::isnan(value)) {
    print(out, "%s", "?");
  } else if (std::isinf(value)) {
    print(out, "%s", error_message(ERR_OVERFLOW));
  } else {
    real_printers[format](out, value, std::clamp(digits, 0, 10));
    replace_marks(out, small);
  }
}

namespace {

// The digits of the low `width` bits, `bits_a_digit` bits each, all of them with zeros in front; a blank
// after each `group` digits counted from the right.
void print_grouped(char* out, std::uint32_t value, int width, int bits_a_digit, int group) {
  const int count = (width + bits_a_digit - 1) / bits_a_digit;
  if (width < 32) value &= (1u << width) - 1u;
  for (int digit = count - 1; digit >= 0; --digit) {
    const std::uint32_t code = (value >> (digit * bits_a_digit)) & ((1u << bits_a_digit) - 1u);
    *out++ = "0123456789ABCDEF"[code];
    if (digit > 0 && digit % group == 0) *out++ = ' ';
  }
  *out = 0;
}

// Long binary numbers fit the result line only with narrow blanks and, in 32 bits, narrow digits.
void narrow_binary(char* text, int width) {
  if (width < 16) return;
  for (; *text; ++text) {
    if (*text == ' ') *text = GLYPH_NARROW_BLANK;
    if (width == 32 && *text == '0') *text = GLYPH_NARROW_0;
    if (width == 32 && *text == '1') *text = GLYPH_NARROW_1;
  }
  if (width == 32) *text++ = GLYPH_NARROW_BLANK, *text = 0;
}

void print_binary(char* out, std::int32_t value, bool small) {
  print_grouped(out, static_cast<std::uint32_t>(value), base_width(), 1, 4);
  if (small) narrow_binary(out, base_width());
  std::strcat(out, "b");
}

void print_octal(char* out, std::int32_t value, bool) {
  print_grouped(out, static_cast<std::uint32_t>(value), base_width(), 3, 3);
  std::strcat(out, "o");
}

void print_decimal(char* out, std::int32_t value, bool) { print(out, "%dd", static_cast<int>(value)); }

void print_hexadecimal(char* out, std::int32_t value, bool) {
  print_grouped(out, static_cast<std::uint32_t>(value), base_width(), 4, 4);
  std::strcat(out, "h");
}

constexpr void (*integer_printers[])(char*, std::int32_t, bool) = {print_binary, print_octal, print_decimal,
                                                                   print_hexadecimal};

}  // namespace

void format_integer(char* out, double value, int base, bool small) {
  constexpr int base_count = sizeof integer_printers / sizeof integer_printers[0];
  if (errors.error_flag)
    out[0] = 0;
  else if (base < 0 || base >= base_count)
    print(out, "%s", "?");
  else
    integer_printers[base](out, cut_to_base_bits(value), small);
}

const char* format_number(double value, int format, int digits, int base, bool small, bool use_base) {
  static TText text;
  if (use_base && state.calcMode == BASE_MODE)
    format_integer(text, value, base, small);
  else
    format_real(text, value, format, digits, small);
  return text;
}

namespace {

const char* format_by_settings(double value, bool small) {
  return format_number(value, settings.numberFormat, settings.decimalDigits, settings.baseType, small, true);
}

// The answer string as the result line can show it: cut, and without characters that would be taken for glyph
// codes.
const char* format_answer_string() {
  static TText text;
  constexpr int longest = 119;
  const char* answer = stores.strings[ANSWER_RECORD].text;
  const bool cut = std::strlen(answer) > longest;
  print(text, "%.*s%s", cut ? longest - 3 : longest, answer, cut ? "..." : "");
  for (char* c = text; *c; ++c)
    if ((*c > 0 && *c < 32) || *c == 127) *c = static_cast<char>(255);
  return text;
}

const char* standing_error_text() { return errors.error_in_program ? state.result_text : errors.error_text; }

}  // namespace

const char* format_result_part(double re, bool small, bool force) {
  if (errors.error_flag) return standing_error_text();
  if (force || !aggregate_answer()) return format_by_settings(re, small);
  if (answers.m_ans_valid) return "Result in Matrix Answer";
  if (answers.l_ans_valid) return "Result in List Answer";
  return format_answer_string();
}

namespace {

// a, then "+" or "-", b and i; without a for a real part of 0, without b for an imaginary part of 1 or -1.
void print_rectangular_result(char* out, double re, double im, bool small, bool force) {
  TText a;
  print(a, "%s", format_result_part(re, small, force));
  const bool whole = errors.error_flag || (aggregate_answer() && !force) || im == 0.0;
  if (whole) return print(out, "%s", a);
  const char* b = std::fabs(im) == 1.0 ? "" : format_result_part(std::fabs(im), small, force);
  const char* sign = im < 0.0 ? "-" : re != 0.0 ? "+" : "";
  print(out, "%s%s%s%c", re != 0.0 ? a : "", sign, b, small ? GLYPH_I : 'i');
}

// a, the base e with "(", the angle and i; only a without an angle.
void print_polar_result(char* out, double re, double im, bool small, bool force) {
  double modulus, angle;
  rect_to_polar(re, im, modulus, angle);
  TText a;
  print(a, "%s", format_result_part(modulus, small, force));
  const bool aggregate = aggregate_answer() && !force;
  const bool whole = errors.error_flag || aggregate || angle == 0.0 || std::isinf(modulus);
  if (whole) return print(out, "%s", a);
  const char base[] = {GLYPH_E, 0};
  const char* b = std::fabs(angle) == 1.0 ? "" : format_result_part(std::fabs(angle), small, force);
  print(out, "%s%s(%s%s%c)", a, small ? base : "e^", angle < 0.0 ? "-" : "", b, small ? GLYPH_I : 'i');
}

}  // namespace

const char* format_result(double re, double im, bool small, bool force) {
  static TText text;
  if (settings.complexFormat == ST_COMPLEX_P)
    print_polar_result(text, re, im, small, force);
  else
    print_rectangular_result(text, re, im, small, force);
  return text;
}

namespace {

struct TValueTexts {
  TText a;
  TText b;
  char i;
};

// "1" and "1e0" are left out in front of i.
const char* shortened_unit(const char* b) {
  for (const char* unit : {"1", "1e0",
                           "1\x1b"
                           "0"})
    if (std::strcmp(b, unit) == 0) return "";
  for (const char* unit : {"-1", "-1e0",
                           "-1\x1b"
                           "0"})
    if (std::strcmp(b, unit) == 0) return "-";
  return b;
}

void print_rectangular_value(char* out, const TValueTexts& texts, bool with_re, bool plain) {
  if (plain) return print(out, "%s+%s%c", texts.a, texts.b, texts.i);
  const bool plus = with_re && texts.b[0] != '-';
  print(out, "%s%s%s%c", with_re ? texts.a : "", plus ? "+" : "", shortened_unit(texts.b), texts.i);
}

}  // namespace

const char* format_value(double re, double im, int format, int digits, int base, bool small, bool plain) {
  static TText text;
  const bool polar = settings.complexFormat == ST_COMPLEX_P;
  if (polar) rect_to_polar(re, im, re, im);
  TValueTexts texts;
  texts.i = small ? GLYPH_I : 'i';
  print(texts.a, "%s", format_number(re, format, digits, base, small, true));
  print(texts.b, "%s", format_number(im, format, digits, base, small, true));
  if (im == 0.0)
    print(text, "%s", texts.a);
  else if (polar)
    print(text, "%s%s(%s%c)", texts.a, plain ? "e^" : "^", texts.b, texts.i);
  else
    print_rectangular_value(text, texts, re != 0.0, plain);
  return text;
}

void plain_text(const char* text, char* out, int size) {
  struct TSpelling {
    char glyph;
    const char* text;
  };
  static constexpr TSpelling spellings[] = {{GLYPH_E, "e^"},       {GLYPH_I, "i"},
                                            {GLYPH_EXPONENT, "e"}, {GLYPH_NARROW_BLANK, " "},
                                            {GLYPH_NARROW_0, "0"}, {GLYPH_NARROW_1, "1"}};
  const char* end = out + size - 1;
  for (; *text; ++text) {
    const char itself[] = {*text, 0};
    const char* spelled = itself;
    for (const TSpelling& spelling : spellings)
      if (spelling.glyph == *text) spelled = spelling.text;
    const int greek = static_cast<unsigned char>(*text) - FIRST_GREEK_GLYPH;
    if (greek >= 0 && greek < GREEK_COUNT) spelled = greek_name(greek);
    const bool spacing = *text == GLYPH_NARROW_BLANK && text[1] == 'b';
    while (!spacing && *spelled && out < end) *out++ = *spelled++;
  }
  *out = 0;
}

}  // namespace zephyl
