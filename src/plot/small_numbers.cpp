#include "plot/small_numbers.h"

#include <cstdio>
#include <cstring>

#include "engine/hooks.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

struct TSmallName {
  char character;
  const char* name;
};

constexpr TSmallName small_names[] = {
    {'(', "SMALL_START_PAREN"}, {')', "SMALL_END_PAREN"}, {'+', "SMALL_PLUSS"}, {',', "SMALL_COMMA"},
    {'-', "SMALL_MINUS"},       {'.', "SMALL_DP"},        {'=', "SMALL_EQUAL"}, {'E', "SMALL_E"},
    {'e', "SMALL_E"},           {'^', "SMALL_E_TO_X"},    {'i', "SMALL_IMAG"},
};

const TBitmap* small_glyph(char character) {
  const char* name = get_small_number_character_bitmap(character);
  return *name ? hooks.bitmap(name) : nullptr;
}

}  // namespace

const char* get_small_number_character_bitmap(char character) {
  static char digit_name[] = "SMALL_0";
  if (character >= '0' && character <= '9') {
    digit_name[6] = character;
    return digit_name;
  }
  for (const TSmallName& row : small_names)
    if (row.character == character) return row.name;
  platform().show_message("bitmap not found", "get_small_number_character_bitmap");
  return "";
}

int draw_small_number(TSurface& surface, const char* text, int x, int y, bool measure_only,
                      bool left_to_right, TColour ink) {
  const int length = static_cast<int>(std::strlen(text));
  for (int i = 0; i < length; ++i) {
    const TBitmap* glyph = small_glyph(text[left_to_right ? i : length - 1 - i]);
    if (!glyph) continue;
    if (!left_to_right) x -= glyph->width;
    if (!measure_only) surface.blit_glyph(*glyph, x, y, ink);
    if (left_to_right) x += glyph->width;
  }
  return x;
}

}  // namespace zephyl
