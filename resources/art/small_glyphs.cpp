// The small font of the plot screens and the words set in it: 9 rows.

#include <algorithm>
#include <string>

#include "fronts.h"
#include "typefaces.h"

namespace art {

namespace {

constexpr int SMALL_HEIGHT = 9;
constexpr int SMALL_DIGIT_WIDTH = 5;
constexpr int LEAST_WORD_WIDTH = 18;

TMask set_small(const std::string& text, int right, int least_width = 0) {
  const TMask line = typefaces().small.text(text);
  TMask out(std::max(line.width() + right, least_width), SMALL_HEIGHT);
  out.stamp(line, 0, 0);
  return out;
}

// Digits take the same width, so that columns of numbers stand in line.
TMask set_digit(char digit) {
  const TMask line = typefaces().small.text(std::string(1, digit));
  TMask out(SMALL_DIGIT_WIDTH, SMALL_HEIGHT);
  out.stamp(line, (SMALL_DIGIT_WIDTH - line.width()) / 2, 0);
  return out;
}

struct TSmallWord {
  const char* name;
  const char* text;
};

// clang-format off
constexpr TSmallWord characters[] = {
    {"START_PAREN", "("}, {"END_PAREN", ")"}, {"PLUSS", "+"}, {"COMMA", ","}, {"MINUS", "-"}, {"DP", "."}, {"EQUAL", "="},
    {"E", "E"}, {"E_TO_X", "^"}, {"IMAG", "i"},
};
constexpr TSmallWord words[] = {
    {"ERROR", "Error"}, {"DOMAIN", "Domain"}, {"OVERFLOW", "Overflow"}, {"UNDEFINED", "Undefined"}, {"NO_DATA", "No Data"},
    {"SYNTAX_ERROR", "Syntax"}, {"DIV_BY_ZERO", "Div by Zero"}, {"DATA_TYPE", "Data Type"},
    {"NO_ROOT_FOUND", "No Root Found"}, {"NO_INTERSECT_FOUND", "No Intersect Found"},
    {"CALC_VALUE", "Value"}, {"CALC_ROOT", "Root"}, {"CALC_MINIMUM", "Minimum"}, {"CALC_MAXIMUM", "Maximum"},
    {"CALC_SLOPE", "slope ="}, {"CALC_INTERSECT", "Intersection"},
    {"XMIN", "xMin ="}, {"XMAX", "xMax ="}, {"YMIN", "yMin ="}, {"YMAX", "yMax ="}, {"XDIV", "xDiv ="}, {"YDIV", "yDiv ="},
    {"XTRACE", "x ="}, {"YTRACE", "y ="}, {"RTRACE", "r ="}, {"XTTRACE", "X(t) ="}, {"YTTRACE", "Y(t) ="},
    {"T", "t ="}, {"THETA", "θ ="}, {"X_3D", "x ="}, {"Y_3D", "y ="}, {"Z_3D", "z ="}, {"R_3D", "r ="},
    {"THETA_3D", "θ ="}, {"THETA_A_3D", "θ ="}, {"THETA_B_3D", "ψ ="},
};
// clang-format on

}  // namespace

void add_small_glyphs(TProduct& product) {
  for (const TSmallWord& row : characters)
    product.add_glyph(std::string("SMALL_") + row.name, set_small(row.text, 1));
  for (char digit = '0'; digit <= '9'; ++digit)
    product.add_glyph(std::string("SMALL_") + digit, set_digit(digit));
  for (const TSmallWord& row : words)
    product.add_glyph(std::string("SMALL_") + row.name, set_small(row.text, 3, LEAST_WORD_WIDTH));
}

}  // namespace art
