// Each row of each key table lies where the pictures have the key.

#include "faceplate/key_tables.h"

#include <vector>

#include "engine/state.h"
#include "plot/plot_variables.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class key_tables : public calculator {};

void expect_row(const TKeyTable& table, int row, const TRect& rect, bool tap_through = false,
                bool cancel_proof = false) {
  ASSERT_LT(row, table.count);
  const KeyRect& key = table.rows[row];
  EXPECT_EQ(key.left, rect.left) << "row " << row;
  EXPECT_EQ(key.top, rect.top) << "row " << row;
  EXPECT_EQ(key.right, rect.right) << "row " << row;
  EXPECT_EQ(key.bottom, rect.bottom) << "row " << row;
  EXPECT_EQ(key.tap_through, tap_through) << "row " << row;
  EXPECT_EQ(key.cancel_proof, cancel_proof) << "row " << row;
}

void expect_tabs(const TKeyTable& table, int first, int top, int bottom) {
  for (int i = 0; i < 6; ++i) expect_row(table, first + i, {4 + 39 * i, top, 4 + 39 * i + 36, bottom}, true);
}

void expect_line(const TKeyTable& table, int first, int count, int left, int pitch, int top, int bottom,
                 int extent) {
  for (int i = 0; i < count; ++i)
    expect_row(table, first + i, {left + pitch * i, top, left + pitch * i + extent, bottom});
}

TEST_F(key_tables, calculator_keys_lie_where_the_front_has_them) {
  ASSERT_EQ(calculator_keys.count, 52);
  expect_line(calculator_keys, 0, 5, 44, 39, 72, 89, 35);
  expect_line(calculator_keys, 5, 6, 5, 39, 102, 119, 35);
  expect_line(calculator_keys, 11, 6, 5, 39, 132, 149, 35);
  expect_line(calculator_keys, 17, 6, 5, 39, 162, 179, 35);
  constexpr int lefts[] = {3, 51, 99, 147, 194}, rights[] = {45, 93, 141, 189, 236};
  constexpr int tops[] = {192, 218, 244, 270}, bottoms[] = {213, 239, 265, 291};
  for (int line = 0; line < 4; ++line)
    for (int i = 0; i < 5; ++i)
      expect_row(calculator_keys, 23 + 5 * line + i, {lefts[i], tops[line], rights[i], bottoms[line]});
  expect_tabs(calculator_keys, 43, 54, 66);
  expect_row(calculator_keys, 49, {5, 72, 40, 89});
  expect_row(calculator_keys, 50, {9, 27, 17, 42}, true);
  expect_row(calculator_keys, 51, {223, 27, 231, 42}, true);
}

TEST_F(key_tables, program_keys_lie_where_the_front_has_them) {
  ASSERT_EQ(program_keys.count, 24);
  expect_line(program_keys, 0, 6, 5, 39, 211, 228, 35);
  expect_line(program_keys, 6, 6, 5, 39, 241, 258, 35);
  expect_line(program_keys, 12, 6, 5, 39, 271, 288, 35);
  expect_tabs(program_keys, 18, 193, 205);
}

struct TPlotRow {
  int row;
  TRect rect;
  bool cancel_proof;
};

void expect_plot_rows(const TKeyTable& table, const std::vector<TPlotRow>& rows) {
  ASSERT_EQ(table.count, 24);
  for (const TPlotRow& row : rows) expect_row(table, row.row, row.rect, false, row.cancel_proof);
  expect_tabs(table, 12, 193, 205);
}

TEST_F(key_tables, plot_keys_lie_where_the_front_has_them) {
  expect_plot_rows(plot_keys, {{0, {7, 7, 7, 7}, false},
                               {1, {8, 242, 92, 260}, false},
                               {2, {8, 266, 92, 284}, false},
                               {3, {97, 219, 121, 240}, true},
                               {4, {126, 219, 150, 240}, true},
                               {5, {98, 247, 149, 261}, true},
                               {6, {98, 266, 149, 280}, true},
                               {7, {180, 242, 210, 258}, true},
                               {8, {156, 242, 179, 259}, true},
                               {9, {211, 238, 232, 263}, true},
                               {10, {186, 212, 205, 235}, true},
                               {11, {186, 263, 205, 286}, true},
                               {18, {7, 7, 7, 7}, true},
                               {19, {7, 7, 7, 7}, true},
                               {20, {10, 219, 28, 234}, true},
                               {21, {31, 219, 49, 234}, true},
                               {22, {52, 219, 70, 234}, true},
                               {23, {73, 219, 91, 234}, true}});
}

TEST_F(key_tables, the_keys_of_surfaces_differ_in_six_rows) {
  expect_plot_rows(plot_keys_3d, {{0, {7, 7, 7, 7}, false},
                                  {1, {8, 242, 92, 260}, false},
                                  {2, {8, 266, 92, 284}, false},
                                  {3, {97, 214, 121, 235}, true},
                                  {4, {126, 214, 150, 235}, true},
                                  {5, {98, 238, 149, 252}, true},
                                  {6, {98, 255, 149, 269}, true},
                                  {7, {180, 242, 210, 258}, true},
                                  {8, {156, 242, 179, 259}, true},
                                  {9, {211, 238, 232, 263}, true},
                                  {10, {186, 212, 205, 235}, true},
                                  {11, {186, 263, 205, 286}, true},
                                  {18, {97, 271, 122, 286}, true},
                                  {19, {126, 271, 151, 286}, true},
                                  {20, {10, 219, 28, 234}, true},
                                  {21, {31, 219, 49, 234}, true},
                                  {22, {52, 219, 70, 234}, true},
                                  {23, {73, 219, 91, 234}, true}});
}

TEST_F(key_tables, alpha_keys_are_relative_to_the_overlay) {
  ASSERT_EQ(alpha_keys.count, 42);
  expect_line(alpha_keys, 0, 10, 9, 22, 29, 46, 18);
  expect_line(alpha_keys, 10, 10, 9, 22, 52, 69, 18);
  expect_line(alpha_keys, 20, 9, 20, 22, 75, 92, 18);
  expect_line(alpha_keys, 29, 7, 27, 22, 98, 115, 18);
  expect_row(alpha_keys, 36, {182, 97, 217, 114});
  expect_row(alpha_keys, 37, {31, 123, 85, 140});
  expect_row(alpha_keys, 38, {90, 123, 144, 140});
  expect_row(alpha_keys, 39, {149, 123, 203, 140});
  expect_row(alpha_keys, 40, {58, 147, 112, 164});
  expect_row(alpha_keys, 41, {122, 147, 176, 164});
  EXPECT_EQ(alpha_keys.dx, 3);
  EXPECT_EQ(alpha_keys.dy, 55);
}

// Where an element stands in the table: 0 for the groups of the 14 behind lanthanum and actinium.
struct TElement {
  int number;
  int period;
  int group;
};

TEST_F(key_tables, elements_stand_by_period_and_group) {
  ASSERT_EQ(periodic_keys.count, 112);
  expect_row(periodic_keys, 0, {62, 233, 84, 286});
  expect_row(periodic_keys, 1, {62, 155, 84, 225});
  constexpr TElement elements[] = {
      {1, 1, 1},   {2, 1, 18},  {3, 2, 1},   {4, 2, 2},   {5, 2, 13},  {10, 2, 18}, {11, 3, 1},
      {12, 3, 2},  {13, 3, 13}, {18, 3, 18}, {19, 4, 1},  {26, 4, 8},  {36, 4, 18}, {37, 5, 1},
      {54, 5, 18}, {55, 6, 1},  {56, 6, 2},  {57, 6, 3},  {72, 6, 4},  {86, 6, 18}, {87, 7, 1},
      {88, 7, 2},  {89, 7, 3},  {104, 7, 4}, {109, 7, 9}, {110, 7, 10}};
  for (const TElement& element : elements) {
    const int left = 198 - 20 * (element.period - 1), top = 3 + 16 * (element.group - 1);
    expect_row(periodic_keys, element.number + 1, {left, top, left + 17, top + 13});
  }
}

TEST_F(key_tables, the_inner_elements_stand_apart) {
  for (int k = 0; k < 14; ++k) {
    const int top = 65 + 16 * k;
    expect_row(periodic_keys, 59 + k, {30, top, 47, top + 13});
    expect_row(periodic_keys, 91 + k, {10, top, 27, top + 13});
  }
}

TEST_F(key_tables, no_two_cells_of_the_periodic_table_share_a_pixel) {
  for (int a = 0; a < periodic_keys.count; ++a)
    for (int b = a + 1; b < periodic_keys.count - 1; ++b) {  // the last has no element
      const TRect one = periodic_keys.rows[a].rect(), other = periodic_keys.rows[b].rect();
      const bool apart = one.right < other.left || other.right < one.left || one.bottom < other.top ||
                         other.bottom < one.top;
      EXPECT_TRUE(apart) << a << " and " << b;
    }
}

TEST_F(key_tables, list_and_matrix_keys_lie_where_the_fronts_have_them) {
  ASSERT_EQ(list_matrix_keys.count, 72);
  expect_tabs(list_matrix_keys, 0, 52, 64);
  constexpr TRect rects[] = {{99, 268, 140, 289},  {194, 268, 236, 289}, {3, 268, 45, 289},
                             {51, 268, 93, 289},   {147, 268, 188, 289}, {22, 240, 112, 250},
                             {114, 240, 205, 250}, {228, 92, 238, 153},  {228, 155, 238, 215},
                             {1, 240, 20, 250},    {207, 240, 226, 250}, {228, 71, 238, 90},
                             {228, 217, 238, 236}};
  for (int i = 0; i < 13; ++i) expect_row(list_matrix_keys, 6 + i, rects[i]);
  expect_row(list_matrix_keys, 19, {9, 27, 17, 42}, true);
  expect_row(list_matrix_keys, 20, {223, 27, 231, 42}, true);
  expect_line(list_matrix_keys, 21, 10, 42, 20, 252, 262, 16);
  expect_row(list_matrix_keys, 31, {2, 252, 37, 262});
  constexpr int lefts[] = {22, 63, 104, 145, 186};
  for (int line = 0; line < 8; ++line)
    for (int i = 0; i < 5; ++i)
      expect_row(list_matrix_keys, 32 + 5 * line + i,
                 {lefts[i], 103 + 15 * line, lefts[i] + 40, 118 + 15 * line});
  EXPECT_EQ(list_matrix_keys.dx, 0);
  EXPECT_EQ(list_matrix_keys.dy, 1);
}

TEST_F(key_tables, each_mode_shows_its_table) {
  const struct {
    int mode;
    const KeyRect* rows;
  } tables[] = {{BASE_MODE, calculator_keys.rows},    {COMP_MODE, calculator_keys.rows},
                {STATS_MODE, calculator_keys.rows},   {PROGRAM_EDIT_MODE, program_keys.rows},
                {PERIODIC_MODE, periodic_keys.rows},  {PLOT_MODE, plot_keys.rows},
                {MATRIX_MODE, list_matrix_keys.rows}, {LIST_MODE, list_matrix_keys.rows}};
  for (const auto& table : tables) {
    state.calcMode = table.mode;
    EXPECT_EQ(shown_key_table().rows, table.rows) << "mode " << table.mode;
  }
}

TEST_F(key_tables, alpha_entry_takes_over_every_mode) {
  state.alpha_active = true;
  EXPECT_EQ(shown_key_table().rows, alpha_keys.rows);
}

TEST_F(key_tables, surfaces_have_a_plot_table_of_their_own) {
  state.calcMode = PLOT_MODE;
  plot_variables.plotType = PLOT_3D;
  EXPECT_EQ(shown_key_table().rows, plot_keys_3d.rows);
}

TEST_F(key_tables, an_unknown_mode_has_no_keys) {
  state.calcMode = 8;
  KeyRect rect;
  EXPECT_EQ(shown_key_table().count, 0);
  EXPECT_FALSE(key_rect(0, rect));
}

TEST_F(key_tables, a_row_is_handed_out_with_its_offsets) {
  state.calcMode = LIST_MODE;
  KeyRect rect;
  ASSERT_TRUE(key_rect(6, rect));
  EXPECT_EQ(rect.top, 269);
  EXPECT_EQ(rect.bottom, 290);
  EXPECT_EQ(rect.left, 99);
  EXPECT_FALSE(key_rect(72, rect));
  EXPECT_FALSE(key_rect(-1, rect));
}

}  // namespace
}  // namespace zephyl
