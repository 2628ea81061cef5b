// The glyphs of the entry and result lines: 17 rows, capitals in rows 3 to 12.

#include <string>

#include "fronts.h"
#include "typefaces.h"

namespace art {

namespace {

constexpr int LINE_HEIGHT = 17;
constexpr int TEXT_TOP = 1;  // row of the typeface's first row
constexpr int DIGIT_WIDTH = 8;
constexpr int BLANK_WIDTH = 12;

// A text with blank columns at its sides; width 0: as wide as that gives.
TMask set_text(const std::string& text, int left, int right, int width = 0) {
  const TMask line = typefaces().line.text(text);
  TMask out(width ? width : left + line.width() + right, LINE_HEIGHT);
  out.stamp(line, left, TEXT_TOP);
  return out;
}

// One character in the middle of a given width.
TMask set_centred(const std::string& text, int width) {
  const int ink = typefaces().line.text(text).width();
  return set_text(text, (width - ink) / 2, 0, width);
}

struct TWord {
  const char* name;
  const char* text;
  int left;
  int right;
};

// clang-format off
constexpr TWord words[] = {
    {"INV_LN", "ℯ^", 1, 1}, {"INV_LOG", "10^", 1, 1}, {"SQUARE_ROOT", "√", 1, 0}, {"CUBE_ROOT", "∛", 1, 0},
    {"TRANSPOSE", "ᵀ", 0, 2}, {"FACTORIAL", "!", 1, 2}, {"INVERT", "⁻¹", 0, 2}, {"SQUARED", "²", 0, 2}, {"CUBE", "³", 0, 2},
    {"ANGLE_DEG", "°", 0, 2}, {"ANGLE_RAD", "ʳ", 0, 2}, {"ANGLE_GRAD", "ᵍ", 0, 2}, {"PERCENT", "%", 0, 1},
    {"REGRESS_X", "x\u0302", 4, 4}, {"REGRESS_Y", "y\u0302", 4, 4},
    {"BASE_NOT", "not", 1, 5}, {"BASE_NEG", "⁃", 1, 1}, {"NEG", "⁃", 1, 1},
    {"POWER", "^", 1, 1}, {"INV_POWER", "ˣ√", 2, 0},
    {"PERCENT_CHANGE", "d%", 4, 4}, {"MULTIPLY", "×", 2, 2}, {"DIVIDE", "÷", 2, 2}, {"BASE_MOD", "mod", 5, 5},
    {"PLUSS", "+", 2, 2}, {"MINUS", "−", 2, 2}, {"SHIFT_LEFT", "<<", 3, 3}, {"SHIFT_RIGHT", ">>", 3, 3},
    {"BASE_AND", "and", 5, 5}, {"BASE_XOR", "xor", 5, 5}, {"BASE_XNOR", "xnor", 5, 5}, {"BASE_OR", "or", 5, 5},
    {"EQUAL", "=", 2, 2}, {"NOT_EQUAL", "≠", 2, 2}, {"GREATER", ">", 2, 2}, {"GREATER_EQUAL", "≥", 2, 2},
    {"LESS", "<", 2, 2}, {"LESS_EQUAL", "≤", 2, 2},
    {"LOGIC_AND", "AND", 4, 4}, {"LOGIC_XOR", "XOR", 4, 4}, {"LOGIC_OR", "OR", 4, 4},
    {"SAVE_M", "→", 3, 3},
    {"SIN", "sin", 0, 0}, {"COS", "cos", 0, 0}, {"TAN", "tan", 0, 0},
    {"ASIN", "asin", 0, 0}, {"ACOS", "acos", 0, 0}, {"ATAN", "atan", 0, 0},
    {"SINH", "sinh", 0, 0}, {"COSH", "cosh", 0, 0}, {"TANH", "tanh", 0, 0},
    {"ASINH", "asinh", 0, 0}, {"ACOSH", "acosh", 0, 0}, {"ATANH", "atanh", 0, 0},
    {"LN", "ln", 0, 0}, {"LOG", "log", 0, 0},
    {"START_PAREN", "(", 1, 1}, {"END_PAREN", ")", 1, 1}, {"START_BRACK_1", "[", 1, 1}, {"END_BRACK_1", "]", 1, 1},
    {"START_BRACK_2", "{", 1, 1}, {"END_BRACK_2", "}", 1, 1},
    {"ANS", "Ans", 1, 1}, {"MATRIX_ANS", "[Ans]", 1, 1}, {"LIST_ANS", "{Ans}", 1, 1}, {"STRING_ANS", "\"Ans\"", 1, 1},
    {"M_ANS", "[Ans]", 1, 1}, {"L_ANS", "{Ans}", 1, 1}, {"STR_ANS", "\"Ans\"", 1, 1},
    {"PI", "π", 1, 1}, {"IMAGINARY", "ⅈ", 1, 1}, {"E_CONSTANT", "ℯ", 1, 1}, {"RAND_NUM", "Rand", 1, 1},
    {"SUM_XY", "Σxy", 3, 3}, {"WEIGHTED_MEAN", "x\u0304w", 3, 3}, {"WEIGHTED_MEAN_Y", "y\u0304w", 3, 3},
    {"MEAN_X", "x\u0304", 3, 3}, {"SUM_X", "Σx", 3, 3}, {"SUM2_X", "Σx²", 3, 3}, {"STD_DEV_X", "σx", 3, 3},
    {"STD_DEV-1_X", "sx", 3, 3}, {"MEAN_Y", "y\u0304", 3, 3}, {"SUM_Y", "Σy", 3, 3}, {"SUM2_Y", "Σy²", 3, 3},
    {"STD_DEV_Y", "σy", 3, 3}, {"STD_DEV-1_Y", "sy", 3, 3}, {"XMIN", "xMin", 3, 4}, {"XMAX", "xMax", 3, 4},
    {"YMIN", "yMin", 3, 4}, {"YMAX", "yMax", 3, 4}, {"SLOPE", "slope", 3, 3}, {"INTERCEPT", "intercept", 3, 3},
    {"CORR_COEF", "corr", 3, 3}, {"STATS_COUNT", "count", 3, 3},
    {"BASE_BIN", "ᵦ", 1, 1}, {"BASE_OCT", "ₒ", 1, 1}, {"BASE_DEC", "ᵈ", 1, 1}, {"BASE_HEX", "ₕ", 1, 1},
    {"U_ASCII_25", "ℯ^", 1, 1}, {"U_ASCII_26", "ⅈ", 1, 1}, {"U_ASCII_27", "ᴇ", 1, 1}, {"U_ASCII_128", "→", 1, 1},
};
// clang-format on

const TMask narrow_0{".##.", "#..#", "#..#", "#..#", "#..#", "#..#", "#..#", "#..#", "#..#", ".##."};
const TMask narrow_1{".#..", "##..", ".#..", ".#..", ".#..", ".#..", ".#..", ".#..", ".#..", "###."};

TMask narrow_digit(const TMask& digit) {
  TMask out(5, LINE_HEIGHT);
  out.stamp(digit, 0, 3);
  return out;
}

std::string character_name(int code) { return "U_ASCII_" + std::to_string(code); }

// The names of the Greek letters in the order of their memories.
constexpr char32_t greek[] = U"αβγδεζηθκλμνξρςστυφψωΓΔΛΠΦΨΩ";
constexpr int FIRST_GREEK = 144;
constexpr int GREEK_COUNT = 28;
constexpr int MISSING = 255;

std::string utf8(char32_t character) {
  const auto byte = [](char32_t value) { return static_cast<char>(value); };
  if (character < 0x80) return {byte(character)};
  return {byte(0xC0 | character >> 6), byte(0x80 | (character & 0x3F))};
}

void add_characters(TProduct& product) {
  product.add_glyph(character_name(' '), TMask(BLANK_WIDTH, LINE_HEIGHT));
  for (int code = '!'; code < 127; ++code) {
    const std::string text(1, static_cast<char>(code));
    const bool is_digit = code >= '0' && code <= '9';
    product.add_glyph(character_name(code), is_digit ? set_centred(text, DIGIT_WIDTH) : set_text(text, 0, 1));
  }
  for (int i = 0; i < GREEK_COUNT; ++i)
    product.add_glyph(character_name(FIRST_GREEK + i), set_text(utf8(greek[i]), 0, 1));
  for (int code = FIRST_GREEK + GREEK_COUNT; code < MISSING; ++code)
    product.add_glyph(character_name(code), set_text(utf8(static_cast<char32_t>(code)), 0, 1));
  product.add_glyph(character_name(MISSING), set_text("□", 0, 1));
  product.add_glyph(character_name(29), TMask(3, LINE_HEIGHT));
  product.add_glyph(character_name(30), narrow_digit(narrow_0));
  product.add_glyph(character_name(31), narrow_digit(narrow_1));
}

void add_number_glyphs(TProduct& product) {
  for (char digit = '0'; digit <= '9'; ++digit)
    product.add_glyph(std::string(1, digit) + "_DIG", set_centred(std::string(1, digit), DIGIT_WIDTH));
  for (char letter = 'A'; letter <= 'F'; ++letter)
    product.add_glyph(std::string("HEX_") + letter, set_centred(std::string(1, letter), DIGIT_WIDTH));
  product.add_glyph("DECIMAL", set_text(".", 1, 1));
  TMask cursor(DIGIT_WIDTH, LINE_HEIGHT);
  cursor.fill(0, 14, 6, 15);
  product.add_glyph("UNDERLINE", cursor);
}

// The scroll and cursor marks beside the lines, and two bitmaps that are no line glyphs.
void add_marks(TProduct& product) {
  static const TMask right{"#......", "###....", "#####..", "#######", "#####..", "###....", "#......"};
  static const TMask up{"...##...", "..####..", ".######.", "########", "........"};
  product.add_glyph("RIGHT_ARROW", right);
  product.add_glyph("LEFT_ARROW", right.flipped());
  product.add_glyph("UP_ARROW", up);
  product.add_glyph("DOWN_ARROW", up.turned());
  TMask question(8, 16);
  question.stamp(typefaces().line.text("?"), 1, 0);
  product.add_glyph("QUESTION", question);
  TMask brush(8, 8);
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x) brush.set(x, y, (x + y) % 2 == 0);
  product.add_glyph("CHECKERED_BRUSH", brush);
}

}  // namespace

void add_line_glyphs(TProduct& product) {
  for (const TWord& word : words) product.add_glyph(word.name, set_text(word.text, word.left, word.right));
  add_characters(product);
  add_number_glyphs(product);
  add_marks(product);
}

}  // namespace art
