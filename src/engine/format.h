// Numbers as text, in one place: real numbers by number format, integers by base, values for the result line.
// Results stand in shared buffers of RESULT_TEXT_SIZE, one a function: copy the first before asking for a
// second.
#pragma once

#include "engine/values.h"

namespace zephyl {

// Characters of small text (`small` true), the text that the calculator draws with its own glyphs.
constexpr char GLYPH_E = 25;         // the base e
constexpr char GLYPH_I = 26;         // the imaginary unit
constexpr char GLYPH_EXPONENT = 27;  // the exponent mark
constexpr char GLYPH_NARROW_BLANK = 29;
constexpr char GLYPH_NARROW_0 = 30;
constexpr char GLYPH_NARROW_1 = 31;
constexpr int FIRST_GREEK_GLYPH = 144;  // the letters of memories, in their order

// out: RESULT_TEXT_SIZE bytes. format: TNumberFormat, another gives "?"; digits 0 to 10. Halves round away
// from 0.
void format_real(char* out, double value, int format, int digits, bool small);
// value is clamped to 32 bits and cut to baseBits with sign. base: TBaseType, another gives "?". Empty while
// an error stands.
void format_integer(char* out, double value, int base, bool small);
// The base-n form in BASE_MODE with use_base, else format_real.
const char* format_number(double value, int format, int digits, int base, bool small, bool use_base);
// One part of an answer by the settings, or what stands in its place: the error text, "Result in List
// Answer", the string. force: the number even where an aggregate answer is valid.
const char* format_result_part(double re, bool small, bool force);
// The text of the result line.
const char* format_result(double re, double im, bool small, bool force);
// The same with settings of one's own, for lists and matrices. A number without an imaginary part (in polar
// form: without an angle) is one text; otherwise `plain` writes both parts out, even 0 and 1, as "0+1i".
const char* format_value(double re, double im, int format, int digits, int base, bool small, bool plain);

// Small text as a listing writes it: "e" for the exponent mark, "e^" for the base, "i", digits and blanks for
// the narrow ones (the one in front of a "b" is dropped). Cut to size; out must not be `text`.
void plain_text(const char* text, char* out, int size);

}  // namespace zephyl
