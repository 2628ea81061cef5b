// The tables of the list and matrix screens: what their cells say and what they look like.

#include "faceplate/table_screens.h"

#include <cmath>
#include <string>

#include "collections/list_screen.h"
#include "collections/list_view.h"
#include "collections/matrix_screen.h"
#include "collections/matrix_view.h"
#include "engine/records.h"
#include "engine/state.h"
#include "faceplate/cell_text.h"
#include "faceplate/face.h"
#include "faceplate/modes.h"
#include "support/golden.h"

namespace zephyl {
namespace {

constexpr int WIDE = 186, NARROW = 37;

class cell_texts : public face {
 protected:
  static std::string text(double re, int width, double im = 0.0) { return cell_text({re, im}, width); }
};

TEST_F(cell_texts, what_fits_is_written_with_ten_digits) {
  EXPECT_EQ(text(1.0 / 3.0, WIDE), "0.3333333333");
  EXPECT_EQ(text(-12.5, NARROW), "-12.5");
  EXPECT_EQ(text(1e100, NARROW), "1e100");
}

TEST_F(cell_texts, what_is_too_wide_goes_scientific_with_what_fits) {
  EXPECT_EQ(text(1.0 / 3.0, small_text_width("3.33e-1")), "3.33e-1");
  EXPECT_EQ(text(1.0 / 3.0, small_text_width("3.33e-1") - 1), "3.3e-1");
  EXPECT_EQ(text(-1.0 / 3.0, small_text_width("-3.3e-1")), "-3.3e-1");
  EXPECT_EQ(text(123456789.0, small_text_width("1.23456789e8")), "123456789");
  EXPECT_EQ(text(1234567891234.0, small_text_width("1.23456789e12")), "1.23456789e12");
  EXPECT_EQ(text(1.0 / 3.0, 1), "3e-1");
}

TEST_F(cell_texts, as_many_decimals_as_fit_and_never_more) {
  for (int width = 20; width < 80; ++width) {
    const std::string shown = text(M_PI * 1e-20, width);
    EXPECT_LE(small_text_width(shown.c_str()), std::max(width, small_text_width("3e-20")));
  }
}

TEST_F(cell_texts, each_width_has_its_own_form) {
  EXPECT_EQ(text(1.0 / 3.0, WIDE), "0.3333333333");
  EXPECT_LT(text(1.0 / 3.0, NARROW).size(), 8u);
  EXPECT_EQ(text(1.0 / 3.0, WIDE), "0.3333333333");
}

TEST_F(cell_texts, complex_values_follow_their_format) {
  settings.complexFormat = ST_COMPLEX_R;
  EXPECT_EQ(text(1.5, WIDE, -2.0), "1.5-2i");
  settings.complexFormat = ST_COMPLEX_P;
  EXPECT_EQ(text(0.0, WIDE, 2.0), "2^(1.5707963268i)");
}

TEST_F(cell_texts, more_values_than_are_remembered) {
  forget_cell_forms();
  for (int round = 0; round < 2; ++round)
    for (int i = 0; i < 1000; ++i) EXPECT_EQ(text(i + 0.5, WIDE), std::to_string(i) + ".5");
}

TEST_F(cell_texts, no_number_is_an_alarm) {
  for (const double value : {0.0, -0.0, 1e308, -1e308, 5e-324, -1.5e-300, 123456789012345.0})
    for (const int width : {WIDE, NARROW})
      for (const int format : {ST_REAL, ST_COMPLEX_R, ST_COMPLEX_P}) {
        settings.complexFormat = format;
        text(value, width);
        text(value, width, -value);
        paint();
      }
  settings.decimalMark = 1;
  text(1.25, WIDE);
  EXPECT_EQ(message(), "none");
}

class table_pictures : public face {
 protected:
  static void show(int mode) {
    set_mode(mode, false);
    paint();
  }
};

TEST_F(table_pictures, a_list) {
  eval("{1.5,-2,1/3,1e100,-12345.678901,(pi)*1e-20,7,8,9,10,11}->{C}");
  choose_list(2);
  choose_list_line(3);
  show(LIST_MODE);
  expect_picture("list_c", screen());
  scroll_list(8);
  paint();
  expect_picture("list_c_below", screen());
}

TEST_F(table_pictures, the_answer_list) {
  settings.complexFormat = ST_COMPLEX_R;
  eval("{1,(i),1/3-2*(i)/3}");
  choose_list(ANSWER_RECORD);
  show(LIST_MODE);
  expect_picture("list_answer", screen());
}

TEST_F(table_pictures, a_matrix) {
  eval("listToMatrix({1,2,1/3,4,5e10,-123456,(pi),-(pi)*1e50,9,10,11,12},2)->[J]");
  choose_matrix(9);
  choose_matrix_cell(1, 2);
  show(MATRIX_MODE);
  expect_picture("matrix_j", screen());
  scroll_matrix_columns(1);
  paint();
  expect_picture("matrix_j_right", screen());
}

TEST_F(table_pictures, a_cursor_past_the_end_is_set_back) {
  set_list_size(5);
  list_view.cursor[0] = 4;
  stores.lists[0].last = 1;
  show(LIST_MODE);
  EXPECT_EQ(list_view.cursor[0], 0);
  set_matrix_size(3, 3);
  choose_matrix_cell(2, 2);
  stores.matrices[0].last_col = 1;
  show(MATRIX_MODE);
  EXPECT_EQ(matrix_view.cursor_row[0], 0);
  EXPECT_EQ(matrix_view.cursor_col[0], 0);
}

TEST_F(table_pictures, an_undefined_table_is_empty) {
  show(LIST_MODE);
  const TRect cells = {2, 103, 225, 237};
  const std::vector<TColour> empty = pixels(cells);
  set_list_size(3);
  paint();
  EXPECT_NE(pixels(cells), empty);
}

TEST_F(table_pictures, the_edges_of_the_largest_tables) {
  set_list_size(LIST_LIMIT);
  scroll_list(LIST_LIMIT);
  choose_list_line(7);
  show(LIST_MODE);
  EXPECT_EQ(list_view.cursor[0], 998);
  set_matrix_size(MATRIX_LIMIT, MATRIX_LIMIT);
  scroll_matrix_rows(MATRIX_LIMIT);
  scroll_matrix_columns(MATRIX_LIMIT);
  choose_matrix_cell(7, 4);
  show(MATRIX_MODE);
  EXPECT_EQ(matrix_view.cursor_col[0], 29);
  EXPECT_EQ(message(), "none");
}

TEST_F(table_pictures, what_a_key_changes_shows) {
  eval("{1,2,3,4}->{A}");
  show(LIST_MODE);
  const std::vector<TColour> before = picture();
  tap_key(32 + 2 * 5);
  EXPECT_NE(picture(), before);
}

}  // namespace
}  // namespace zephyl
