// Every picture and glyph that the program can ask for is there, in its size, and the legends lie at their
// keys.

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "engine/operation_table.h"
#include "engine/tokens.h"
#include "faceplate/gif.h"
#include "faceplate/key_tables.h"
#include "faceplate/resource_tables.h"
#include "faceplate/resources.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class art : public calculator {};

struct TSize {
  int width;
  int height;
};

TSize size_of(const TImageResource& image) {
  return {image.bytes[6] | image.bytes[7] << 8, image.bytes[8] | image.bytes[9] << 8};
}

std::string in_skin(std::string name, int skin) {
  name += '_';
  return name += std::to_string(skin);
}

std::vector<std::string> checked;

void expect_size(const std::string& name, int width, int height) {
  const TImageResource* image = find_image(name.c_str());
  ASSERT_NE(image, nullptr) << name;
  const TSize size = size_of(*image);
  EXPECT_EQ(size.width, width) << name;
  EXPECT_EQ(size.height, height) << name;
  TSurface surface(240, 320);
  EXPECT_EQ(draw_gif(surface, image->bytes, image->size, 0, 0, false, false), GIF_OK) << name;
  checked.push_back(name);
}

void expect_skins(const char* name, int width, int height) {
  for (int skin = 0; skin < 3; ++skin) expect_size(in_skin(name, skin), width, height);
}

TEST_F(art, has_154_pictures_in_their_sizes) {
  for (const char* name : {"BACKGROUND_GIF", "BASE_CALCULATOR_GIF", "CALCULATOR_GIF", "STAT_CALCULATOR_GIF",
                           "PROG_CALCULATOR_GIF", "PROGRAM_BACKGROUND_GIF", "PLOT_BACKGROUND_GIF",
                           "PLOT_CALCULATOR_FUNCTION_GIF", "PLOT_CALCULATOR_3D_GIF", "LIST_BACKGROUND_GIF",
                           "MATRIX_BACKGROUND_GIF", "LIST_GIF", "MATRIX_GIF"})
    expect_skins(name, 240, 294);
  expect_size("PERIODIC_GIF", 240, 294);
  for (const char* name :
       {"ALPHA_ENTRY_GIF", "ALPHA_CHARACTERS_GIF", "ALPHA_SYMBOLS_SHORT_GIF", "ALPHA_SYMBOLS_LONG_GIF"})
    expect_size(name, 235, 175);
  expect_size("PLOT_SAMPLE_GIF", 204, 248);
  for (const char* name : {"FUNCTION", "POLAR", "PARAMETRIC", "CARTESIAN", "CYLINDRICAL", "SPHERICAL"})
    expect_size(name, 200, 187);
  expect_size("ENUM_LINE", 240, 13);
  for (const char* name :
       {"ENUN_BASE", "ENUN_COMP", "ENUN_LIST", "ENUN_MATRIX", "ENUN_PLOT", "ENUN_PROG", "ENUN_STATS",
        "ENUN_BASE_DARK", "ENUN_LIST_DARK", "ENUN_MATRIX_DARK", "ENUN_STATS_DARK"})
    expect_size(name, 37, 13);
  for (const char* name : {"AC_BUTTON_GIF", "RED_AC_BUTTON_GIF", "COMMA_BUTTON_GIF", "LIST_BUTTON_GIF",
                           "MATRIX_BUTTON_GIF", "STATS_BUTTON_GIF"}) {
    expect_size(name + std::string("_0"), 42, 22);
    expect_size(name + std::string("_1"), 43, 22);
    expect_size(name + std::string("_2"), 43, 22);
  }
  for (const char* name : {"SMALL_BUTTON_GIF", "SMALL_LIGHT_BUTTON_GIF"}) {
    expect_size(name + std::string("_0"), 36, 18);
    expect_size(name + std::string("_1"), 36, 18);
    expect_size(name + std::string("_2"), 36, 19);
  }
  for (const char* name : {"BLUE_DOT_BUTTON_GIF", "BLUE_SHIFT_BUTTON_GIF", "ORANGE_DOT_BUTTON_GIF",
                           "ORANGE_SHIFT_BUTTON_GIF", "STOP_BUTTON_GIF"})
    expect_skins(name, 36, 18);
  for (const char* name : {"RUN_BUTTON_GIF",
                           "HYP_BUTTON_GIF",
                           "WHITE_DOT_BUTTON_GIF",
                           "SMALL_DOT_BUTTON_GIF",
                           "ALPHA_SHIFT_BUTTON",
                           "DOT_ALPHA_SHIFT_BUTTON",
                           "LEFT_ARROW_BUTTON_GIF",
                           "RIGHT_ARROW_BUTTON_GIF",
                           "LEFT_ARROW_BUTTON_RED_GIF",
                           "RIGHT_ARROW_BUTTON_RED_GIF",
                           "8_BIT_GIF",
                           "16_BIT_GIF",
                           "32_BIT_GIF",
                           "BIN_GIF",
                           "OCT_GIF",
                           "DEC_GIF",
                           "HEX_GIF",
                           "RAD_GIF",
                           "DEG_GIF",
                           "GRAD_GIF",
                           "LINR_GIF",
                           "LOGR_GIF",
                           "EXPR_GIF",
                           "POWR_GIF",
                           "1_VAR_GIF",
                           "2_VAR_GIF"})
    expect_size(name, 36, 18);
  for (const char* name :
       {"ALPHA_CONSTANT_NAME", "ALPHA_CONSTANT_UNIT", "ALPHA_INPUT_PROMPT", "ALPHA_MENU_ITEM",
        "ALPHA_MENU_TITLE", "ALPHA_OUTPUT_TEXT", "ALPHA_OUTPUT_TEXT_LABEL", "ALPHA_PROGRAM_ERROR",
        "ALPHA_PROGRAM_NAME", "ALPHA_STRING_TEXT"}) {
    ASSERT_NE(find_image(name), nullptr) << name;
    const TSize size = size_of(*find_image(name));
    EXPECT_GE(size.width, 59) << name;
    EXPECT_LE(size.width, 106) << name;
    expect_size(name, size.width, size.height == 10 ? 10 : 13);
  }
  for (const char* name : {"LIST_ANS", "MATRIX_ANS"}) expect_size(name, 40, 14);
  for (char letter = 'A'; letter <= 'J'; ++letter) expect_size(std::string("MATRIX_") + letter, 20, 14);
  for (const char* name : {"GREEN_LED_GIF", "RED_LED_GIF"}) expect_size(name, 9, 9);
  for (const char* name : {"LOWER_LEFT_BUTTON", "LOWER_RIGHT_BUTTON"}) expect_size(name, 9, 16);
  EXPECT_EQ(checked.size(), 154u);
  EXPECT_EQ(image_resource_count, 154);
}

TEST_F(art, is_sorted_for_the_search) {
  for (int i = 1; i < image_resource_count; ++i)
    EXPECT_LT(std::strcmp(image_resources[i - 1].name, image_resources[i].name), 0);
  for (int i = 1; i < glyph_resource_count; ++i)
    EXPECT_LT(std::strcmp(glyph_resources[i - 1].name, glyph_resources[i].name), 0);
}

std::string character_name(int code) {
  std::string name = "U_ASCII_";
  name += std::to_string(code);
  return name;
}

constexpr int LINE_GLYPH_HEIGHT = 17;

void expect_line_glyph(const char* name) {
  const TBitmap* glyph = find_glyph(name);
  ASSERT_NE(glyph, nullptr) << name;
  EXPECT_EQ(glyph->height, LINE_GLYPH_HEIGHT) << name;
  EXPECT_GT(glyph->width, 0) << name;
}

TEST_F(art, has_a_glyph_for_every_operation_that_is_not_spelled) {
  for (const TOperationRow& row : operation_array)
    if (!row.spelled && *row.internal_name) expect_line_glyph(row.internal_name);
}

TEST_F(art, has_a_glyph_for_every_statistics_value) {
  for (int index = 0; index < NO_STATISTIC; ++index) expect_line_glyph(statistics_glyph(index));
}

TEST_F(art, has_a_glyph_for_every_special_token) {
  for (int token : {3, 4, 103, 104, 203, 204, 41, 117, 118, 120, 217, 1299, 1300, 1301})
    expect_line_glyph(decode_token(static_cast<TToken>(token)).name);
}

TEST_F(art, has_a_glyph_for_every_character_that_is_drawn) {
  for (int code : {25, 26, 27, 29, 30, 31, 128}) EXPECT_NE(find_glyph(character_name(code).c_str()), nullptr);
  for (int code = 32; code < 256; ++code)
    if (code < 127 || code > 143) expect_line_glyph(character_name(code).c_str());
}

TEST_F(art, has_the_glyphs_of_numbers_in_one_width) {
  for (const char* name : {"0_DIG", "1_DIG", "2_DIG", "3_DIG", "4_DIG", "5_DIG", "6_DIG", "7_DIG", "8_DIG",
                           "9_DIG", "HEX_A", "HEX_B", "HEX_C", "HEX_D", "HEX_E", "HEX_F"}) {
    expect_line_glyph(name);
    EXPECT_EQ(find_glyph(name)->width, 8) << name;
  }
  for (const char* name : {"DECIMAL", "UNDERLINE", "BASE_BIN", "BASE_OCT", "BASE_DEC", "BASE_HEX"})
    expect_line_glyph(name);
}

TEST_F(art, has_the_glyphs_of_stated_widths) {
  const struct {
    const char* name;
    int width;
  } glyphs[] = {{"U_ASCII_32", 12}, {"ACOSH", 34}, {"XMAX", 35}};
  for (const auto& row : glyphs) {
    expect_line_glyph(row.name);
    EXPECT_EQ(find_glyph(row.name)->width, row.width) << row.name;
  }
}

TEST_F(art, has_small_characters_of_one_height) {
  for (const char* name :
       {"START_PAREN", "END_PAREN", "PLUSS", "COMMA", "MINUS", "DP", "EQUAL", "E", "E_TO_X", "IMAG",
        "0",           "1",         "2",     "3",     "4",     "5",  "6",     "7", "8",      "9"}) {
    const TBitmap* glyph = find_glyph((std::string("SMALL_") + name).c_str());
    ASSERT_NE(glyph, nullptr) << name;
    EXPECT_EQ(glyph->height, find_glyph("SMALL_0")->height) << name;
  }
}

TEST_F(art, has_a_32_bit_binary_number_that_fits_the_result_line) {
  const auto width = [](int code) { return character_glyph(static_cast<unsigned char>(code)).width; };
  EXPECT_EQ(width(30), width(31));
  EXPECT_LE(32 * width(30) + 8 * width(29) + width('b'), 203);
}

TEST_F(art, gives_every_operation_a_glyph_of_its_own) {
  for (const TOperationRow& a : operation_array)
    for (const TOperationRow& b : operation_array) {
      if (a.code >= b.code || a.spelled || b.spelled || !*a.internal_name || !*b.internal_name) continue;
      const TBitmap *first = find_glyph(a.internal_name), *second = find_glyph(b.internal_name);
      const bool negatives = a.code == OP_BASE_NEG && b.code == OP_NEG;
      if (negatives || std::strcmp(a.internal_name, b.internal_name) == 0 || first->width != second->width)
        continue;
      const std::size_t size = static_cast<std::size_t>((first->width + 7) / 8 * first->height);
      EXPECT_NE(std::memcmp(first->bits, second->bits, size), 0)
          << a.internal_name << " and " << b.internal_name;
    }
}

TEST_F(art, has_the_marks_and_swatches_in_their_sizes) {
  const struct {
    const char* name;
    int width;
    int height;
  } bitmaps[] = {{"UP_ARROW", 8, 5},    {"DOWN_ARROW", 8, 5}, {"LEFT_ARROW", 7, 7},
                 {"RIGHT_ARROW", 7, 7}, {"QUESTION", 8, 16},  {"CHECKERED_BRUSH", 8, 8}};
  for (const auto& row : bitmaps) {
    ASSERT_NE(find_glyph(row.name), nullptr) << row.name;
    EXPECT_EQ(find_glyph(row.name)->width, row.width) << row.name;
    EXPECT_EQ(find_glyph(row.name)->height, row.height) << row.name;
  }
  for (const char* name : {"BLUE_BOX", "GREEN_BOX", "RED_BOX", "PURPLE_BOX", "ORANGE_BOX", "TEAL_BOX"}) {
    ASSERT_NE(find_picture(name), nullptr) << name;
    EXPECT_EQ(find_picture(name)->width, 16) << name;
    EXPECT_EQ(find_picture(name)->height, 16) << name;
  }
  for (const char* name : {"GREEN_TRACE_LED", "GREY_TRACE_LED"}) {
    ASSERT_NE(find_picture(name), nullptr) << name;
    EXPECT_EQ(find_picture(name)->width, 3) << name;
    EXPECT_EQ(find_picture(name)->height, 3) << name;
  }
}

TEST_F(art, has_the_words_of_the_plot_screens) {
  for (const char* name : {"ERROR",         "DOMAIN",
                           "OVERFLOW",      "UNDEFINED",
                           "NO_DATA",       "SYNTAX_ERROR",
                           "DIV_BY_ZERO",   "DATA_TYPE",
                           "NO_ROOT_FOUND", "NO_INTERSECT_FOUND",
                           "CALC_VALUE",    "CALC_ROOT",
                           "CALC_MINIMUM",  "CALC_MAXIMUM",
                           "CALC_SLOPE",    "CALC_INTERSECT",
                           "XMIN",          "XMAX",
                           "YMIN",          "YMAX",
                           "XDIV",          "YDIV",
                           "XTRACE",        "YTRACE",
                           "RTRACE",        "XTTRACE",
                           "YTTRACE",       "T",
                           "THETA",         "X_3D",
                           "Y_3D",          "Z_3D",
                           "R_3D",          "THETA_3D",
                           "THETA_A_3D",    "THETA_B_3D"}) {
    const TBitmap* word = find_glyph((std::string("SMALL_") + name).c_str());
    ASSERT_NE(word, nullptr) << name;
    EXPECT_GE(word->width, 18) << name;
    EXPECT_LE(word->width, 92) << name;
    EXPECT_GE(word->height, 7) << name;
    EXPECT_LE(word->height, 9) << name;
  }
}

// Legends

// The first key whose columns hold x and over which, or on which, y lies; -1 if none. over: rows above a key
// for legends.
int key_near(const TKeyTable& table, int first, int last, int x, int y, int over) {
  for (int key = first; key <= last; ++key) {
    const KeyRect& rect = table.rows[key];
    if (x >= rect.left && x <= rect.right && y >= rect.top - over && y <= rect.bottom) return key;
  }
  return -1;
}

constexpr TColour NOTHING = rgb(255, 0, 255);

TSurface printed_alone(const std::string& name) {
  TSurface surface(240, 294);
  surface.fill({0, 0, 239, 293}, NOTHING);
  const TImageResource* image = find_image(name.c_str());
  EXPECT_EQ(draw_gif(surface, image->bytes, image->size, 0, 0, true, false), GIF_OK) << name;
  return surface;
}

// Keys of a table, and how many rows above them belong to them: those of the legends over a key.
struct TKeyRows {
  const TKeyTable& table;
  std::vector<std::pair<int, int>> ranges;  // first and last row
  int over;
};

bool belongs_to_a_key(const TKeyRows& keys, int x, int y) {
  for (const auto& [first, last] : keys.ranges)
    if (key_near(keys.table, first, last, x, y, keys.over) >= 0) return true;
  return false;
}

// How many pixels of a front lie at no key.
int stray_pixels(const std::string& name, const TKeyRows& keys) {
  const TSurface surface = printed_alone(name);
  int stray = 0, drawn = 0;
  for (int y = 0; y < 294; ++y)
    for (int x = 0; x < 240; ++x) {
      if (surface.pixel(x, y) == NOTHING) continue;
      ++drawn;
      stray += !belongs_to_a_key(keys, x, y);
    }
  EXPECT_GT(drawn, 300) << name;
  return stray;
}

constexpr int LEGEND_ROWS = 11;

TEST_F(art, prints_legends_within_the_columns_of_their_keys) {
  const TKeyRows calculator = {calculator_keys, {{0, 42}, {49, 49}}, LEGEND_ROWS};
  const TKeyRows program = {program_keys, {{0, 17}}, LEGEND_ROWS};
  for (int skin = 0; skin < 3; ++skin) {
    for (const char* name : {"CALCULATOR_GIF", "BASE_CALCULATOR_GIF", "STAT_CALCULATOR_GIF"})
      EXPECT_EQ(stray_pixels(in_skin(name, skin), calculator), 0) << name << skin;
    EXPECT_EQ(stray_pixels(in_skin("PROG_CALCULATOR_GIF", skin), program), 0) << skin;
  }
}

// A cap throws a shadow on the row below its key.
TKeyTable with_shadows(const TKeyTable& table, std::vector<KeyRect>& rows) {
  rows.assign(table.rows, table.rows + table.count);
  for (KeyRect& row : rows) {
    row.top += table.dy;
    row.bottom += table.dy + 1;
  }
  TKeyTable out = table;
  out.rows = rows.data();
  return out;
}

TEST_F(art, prints_the_fronts_of_plots_and_tables_on_their_keys) {
  std::vector<KeyRect> plain_rows, surface_rows, table_rows;
  const TKeyTable plain = with_shadows(plot_keys, plain_rows),
                  surface = with_shadows(plot_keys_3d, surface_rows),
                  table = with_shadows(list_matrix_keys, table_rows);
  for (int skin = 0; skin < 3; ++skin) {
    EXPECT_EQ(stray_pixels(in_skin("PLOT_CALCULATOR_FUNCTION_GIF", skin), {plain, {{1, 11}, {20, 23}}, 0}),
              0);
    EXPECT_EQ(stray_pixels(in_skin("PLOT_CALCULATOR_3D_GIF", skin), {surface, {{1, 11}, {18, 23}}, 0}), 0);
    EXPECT_EQ(stray_pixels(in_skin("LIST_GIF", skin), {table, {{6, 10}, {13, 14}, {17, 18}}, 0}), 0);
    EXPECT_EQ(stray_pixels(in_skin("MATRIX_GIF", skin), {table, {{6, 18}}, 0}), 0);
  }
}

// A key that means nothing on a symbol page is covered, with its outline and its shadow.
TEST_F(art, prints_the_characters_of_the_text_entry_on_their_keys) {
  std::vector<KeyRect> rows(alpha_keys.rows, alpha_keys.rows + alpha_keys.count);
  TKeyTable keys = alpha_keys;
  keys.rows = rows.data();
  EXPECT_EQ(stray_pixels("ALPHA_CHARACTERS_GIF", {keys, {{0, 41}}, 0}), 0);
  for (KeyRect& row : rows) row = {row.left - 1, row.top - 1, row.right + 1, row.bottom + 1, 0, 0};
  EXPECT_EQ(stray_pixels("ALPHA_SYMBOLS_LONG_GIF", {keys, {{0, 41}}, 0}), 0);
  EXPECT_EQ(stray_pixels("ALPHA_SYMBOLS_SHORT_GIF", {keys, {{0, 41}}, 0}), 0);
}

bool has_print(const TSurface& surface, const KeyRect& rect) {
  for (int y = rect.top; y <= rect.bottom; ++y)
    for (int x = rect.left; x <= rect.right; ++x)
      if (surface.pixel(x, y) != NOTHING) return true;
  return false;
}

// Those whose print is an indicator are left to it.
TEST_F(art, prints_something_on_every_key) {
  const struct {
    const char* name;
    std::vector<int> indicators;
  } fronts[] = {{"CALCULATOR_GIF_0", {0, 1, 2, 16, 21, 22, 26, 27}},
                {"BASE_CALCULATOR_GIF_0", {0, 1, 2, 21, 22, 27}},
                {"STAT_CALCULATOR_GIF_0", {0, 1, 9, 21, 22, 27}}};
  for (const auto& front : fronts) {
    const TSurface surface = printed_alone(front.name);
    for (int key = 0; key <= 42; ++key) {
      const bool indicator =
          std::find(front.indicators.begin(), front.indicators.end(), key) != front.indicators.end();
      EXPECT_EQ(has_print(surface, calculator_keys.rows[key]), !indicator) << front.name << " key " << key;
    }
  }
}

TEST_F(art, leaves_the_display_plain) {
  for (int skin = 0; skin < 3; ++skin) {
    TSurface surface(240, 294);
    const TImageResource* image = find_image(in_skin("BACKGROUND_GIF", skin).c_str());
    draw_gif(surface, image->bytes, image->size, 0, 0, false, false);
    for (int y = 6; y <= 46; ++y)
      for (int x = 7; x <= 232; ++x) ASSERT_EQ(surface.pixel(x, y), rgb(210, 203, 158));
  }
}

TEST_F(art, prints_every_front_in_every_skin_alike) {
  // Where one skin has ink on its front, the others have it too: they differ in colours only.
  for (const char* name :
       {"CALCULATOR_GIF", "BASE_CALCULATOR_GIF", "STAT_CALCULATOR_GIF", "PROG_CALCULATOR_GIF"}) {
    std::vector<TSurface> skins(3, TSurface(240, 294));
    for (int skin = 0; skin < 3; ++skin) {
      TSurface& surface = skins[static_cast<std::size_t>(skin)];
      surface.fill({0, 0, 239, 293}, NOTHING);
      const TImageResource* image = find_image(in_skin(name, skin).c_str());
      draw_gif(surface, image->bytes, image->size, 0, 0, true, false);
    }
    for (int y = 0; y < 294; ++y)
      for (int x = 0; x < 240; ++x) {
        ASSERT_EQ(skins[0].pixel(x, y) == NOTHING, skins[1].pixel(x, y) == NOTHING)
            << name << " " << x << " " << y;
        ASSERT_EQ(skins[0].pixel(x, y) == NOTHING, skins[2].pixel(x, y) == NOTHING)
            << name << " " << x << " " << y;
      }
  }
}

}  // namespace
}  // namespace zephyl
