#include "faceplate/key_tables.h"

#include <initializer_list>

#include "engine/state.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

constexpr int CALCULATOR_KEY_COUNT = 52;
constexpr int PROGRAM_KEY_COUNT = 24;
constexpr int PLOT_KEY_COUNT = 24;
constexpr int ALPHA_KEY_COUNT = 42;
constexpr int PERIODIC_KEY_COUNT = 112;
constexpr int LIST_MATRIX_KEY_COUNT = 72;

constexpr bool TAP_THROUGH = true;
constexpr bool CANCEL_PROOF = true;

// Keys side by side: `extent` is right minus left, `pitch` from left to left.
struct TLine {
  int left;
  int pitch;
  int extent;
  int top;
  int bottom;
};

template <int COUNT>
struct TKeyRows {
  KeyRect rows[COUNT] = {};
  int used = 0;

  constexpr void add(const KeyRect& row) { rows[used++] = row; }
  constexpr void add_line(int count, const TLine& line, bool tap_through = false, bool cancel_proof = false) {
    for (int i = 0; i < count; ++i) {
      const int left = line.left + line.pitch * i;
      add({left, line.top, left + line.extent, line.bottom, tap_through, cancel_proof});
    }
  }
};

constexpr int SMALL_PITCH = 39;
constexpr int SMALL_EXTENT = 35;

// The six keys of a line of function keys.
template <int COUNT>
constexpr void add_small_keys(TKeyRows<COUNT>& keys, int top) {
  keys.add_line(6, {5, SMALL_PITCH, SMALL_EXTENT, top, top + 17});
}

// The five keys of a line of digit keys.
constexpr void add_large_keys(TKeyRows<CALCULATOR_KEY_COUNT>& keys, int top) {
  for (const int left : {3, 51, 99, 147, 194}) keys.add({left, top, left + 42, top + 21});
}

template <int COUNT>
constexpr void add_tabs(TKeyRows<COUNT>& keys, int top) {
  keys.add_line(6, {4, SMALL_PITCH, 36, top, top + 12}, TAP_THROUGH);
}

constexpr TKeyRows<CALCULATOR_KEY_COUNT> make_calculator_keys() {
  TKeyRows<CALCULATOR_KEY_COUNT> keys;
  keys.add_line(5, {44, SMALL_PITCH, SMALL_EXTENT, 72, 89});
  for (const int top : {102, 132, 162}) add_small_keys(keys, top);
  for (const int top : {192, 218, 244, 270}) add_large_keys(keys, top);
  add_tabs(keys, 54);
  keys.add({5, 72, 40, 89});
  keys.add({9, 27, 17, 42, TAP_THROUGH});
  keys.add({223, 27, 231, 42, TAP_THROUGH});
  return keys;
}

constexpr TKeyRows<PROGRAM_KEY_COUNT> make_program_keys() {
  TKeyRows<PROGRAM_KEY_COUNT> keys;
  for (const int top : {211, 241, 271}) add_small_keys(keys, top);
  add_tabs(keys, 193);
  return keys;
}

constexpr KeyRect plot_pad(int left, int top, int right, int bottom) {
  return {left, top, right, bottom, false, CANCEL_PROOF};
}

constexpr TKeyRows<PLOT_KEY_COUNT> make_plot_keys() {
  TKeyRows<PLOT_KEY_COUNT> keys;
  keys.add({7, 7, 7, 7});
  keys.add({8, 242, 92, 260});
  keys.add({8, 266, 92, 284});
  keys.add(plot_pad(97, 219, 121, 240));
  keys.add(plot_pad(126, 219, 150, 240));
  keys.add(plot_pad(98, 247, 149, 261));
  keys.add(plot_pad(98, 266, 149, 280));
  keys.add(plot_pad(180, 242, 210, 258));
  keys.add(plot_pad(156, 242, 179, 259));
  keys.add(plot_pad(211, 238, 232, 263));
  keys.add(plot_pad(186, 212, 205, 235));
  keys.add(plot_pad(186, 263, 205, 286));
  add_tabs(keys, 193);
  for (int i = 0; i < 2; ++i) keys.add(plot_pad(7, 7, 7, 7));
  keys.add_line(4, {10, 21, 18, 219, 234}, false, CANCEL_PROOF);
  return keys;
}

constexpr TKeyRows<PLOT_KEY_COUNT> make_plot_keys_3d() {
  TKeyRows<PLOT_KEY_COUNT> keys = make_plot_keys();
  keys.rows[3] = plot_pad(97, 214, 121, 235);
  keys.rows[4] = plot_pad(126, 214, 150, 235);
  keys.rows[5] = plot_pad(98, 238, 149, 252);
  keys.rows[6] = plot_pad(98, 255, 149, 269);
  keys.rows[18] = plot_pad(97, 271, 122, 286);
  keys.rows[19] = plot_pad(126, 271, 151, 286);
  return keys;
}

constexpr TKeyRows<ALPHA_KEY_COUNT> make_alpha_keys() {
  TKeyRows<ALPHA_KEY_COUNT> keys;
  keys.add_line(10, {9, 22, 18, 29, 46});
  keys.add_line(10, {9, 22, 18, 52, 69});
  keys.add_line(9, {20, 22, 18, 75, 92});
  keys.add_line(7, {27, 22, 18, 98, 115});
  keys.add({182, 97, 217, 114});
  keys.add_line(3, {31, 59, 54, 123, 140});
  keys.add_line(2, {58, 64, 54, 147, 164});
  return keys;
}

constexpr KeyRect element_cell(int left, int top) { return {left, top, left + 17, top + 13}; }

// Elements of one period in groups that follow each other.
struct TElementRun {
  int count;
  int period;
  int group;
};

constexpr void add_elements(TKeyRows<PERIODIC_KEY_COUNT>& keys, const TElementRun& run) {
  for (int i = 0; i < run.count; ++i)
    keys.add(element_cell(198 - 20 * (run.period - 1), 3 + 16 * (run.group + i - 1)));
}

// The 14 elements behind lanthanum and behind actinium stand apart.
constexpr void add_inner_elements(TKeyRows<PERIODIC_KEY_COUNT>& keys, int left) {
  for (int k = 0; k < 14; ++k) keys.add(element_cell(left, 65 + 16 * k));
}

// The table is turned a quarter: periods run right to left, groups top to bottom.
constexpr TKeyRows<PERIODIC_KEY_COUNT> make_periodic_keys() {
  TKeyRows<PERIODIC_KEY_COUNT> keys;
  keys.add({62, 233, 84, 286});
  keys.add({62, 155, 84, 225});
  for (const TElementRun& run : {TElementRun{1, 1, 1},
                                 {1, 1, 18},
                                 {2, 2, 1},
                                 {6, 2, 13},
                                 {2, 3, 1},
                                 {6, 3, 13},
                                 {18, 4, 1},
                                 {18, 5, 1},
                                 {3, 6, 1}})
    add_elements(keys, run);
  add_inner_elements(keys, 30);
  add_elements(keys, {15, 6, 4});
  add_elements(keys, {3, 7, 1});
  add_inner_elements(keys, 10);
  add_elements(keys, {7, 7, 4});
  return keys;
}

constexpr TKeyRows<LIST_MATRIX_KEY_COUNT> make_list_matrix_keys() {
  TKeyRows<LIST_MATRIX_KEY_COUNT> keys;
  add_tabs(keys, 52);
  keys.add({99, 268, 140, 289});
  keys.add({194, 268, 236, 289});
  keys.add({3, 268, 45, 289});
  keys.add({51, 268, 93, 289});
  keys.add({147, 268, 188, 289});
  keys.add({22, 240, 112, 250});
  keys.add({114, 240, 205, 250});
  keys.add({228, 92, 238, 153});
  keys.add({228, 155, 238, 215});
  keys.add({1, 240, 20, 250});
  keys.add({207, 240, 226, 250});
  keys.add({228, 71, 238, 90});
  keys.add({228, 217, 238, 236});
  keys.add({9, 27, 17, 42, TAP_THROUGH});
  keys.add({223, 27, 231, 42, TAP_THROUGH});
  keys.add_line(10, {42, 20, 16, 252, 262});
  keys.add({2, 252, 37, 262});
  for (int line = 0; line < 8; ++line) keys.add_line(5, {22, 41, 40, 103 + 15 * line, 118 + 15 * line});
  return keys;
}

constexpr auto calculator_rows = make_calculator_keys();
constexpr auto program_rows = make_program_keys();
constexpr auto plot_rows = make_plot_keys();
constexpr auto plot_rows_3d = make_plot_keys_3d();
constexpr auto alpha_rows = make_alpha_keys();
constexpr auto periodic_rows = make_periodic_keys();
constexpr auto list_matrix_rows = make_list_matrix_keys();

static_assert(calculator_rows.used == CALCULATOR_KEY_COUNT);
static_assert(program_rows.used == PROGRAM_KEY_COUNT);
static_assert(plot_rows.used == PLOT_KEY_COUNT);
static_assert(alpha_rows.used == ALPHA_KEY_COUNT);
static_assert(periodic_rows.used == PERIODIC_KEY_COUNT);
static_assert(list_matrix_rows.used == LIST_MATRIX_KEY_COUNT);

}  // namespace

const TKeyTable calculator_keys = {calculator_rows.rows, CALCULATOR_KEY_COUNT};
const TKeyTable program_keys = {program_rows.rows, PROGRAM_KEY_COUNT};
const TKeyTable plot_keys = {plot_rows.rows, PLOT_KEY_COUNT};
const TKeyTable plot_keys_3d = {plot_rows_3d.rows, PLOT_KEY_COUNT};
const TKeyTable alpha_keys = {alpha_rows.rows, ALPHA_KEY_COUNT, 3, 55};
const TKeyTable periodic_keys = {periodic_rows.rows, PERIODIC_KEY_COUNT};
const TKeyTable list_matrix_keys = {list_matrix_rows.rows, LIST_MATRIX_KEY_COUNT, 0, 1};

TKeyTable shown_key_table() {
  if (state.alpha_active) return alpha_keys;
  switch (state.calcMode) {
    case BASE_MODE:
    case COMP_MODE:
    case STATS_MODE:
      return calculator_keys;
    case PROGRAM_EDIT_MODE:
      return program_keys;
    case PERIODIC_MODE:
      return periodic_keys;
    case PLOT_MODE:
      return plot_variables.plotType == PLOT_3D ? plot_keys_3d : plot_keys;
    case MATRIX_MODE:
    case LIST_MODE:
      return list_matrix_keys;
    default:
      return {};
  }
}

bool key_rect(int key, KeyRect& rect) {
  const TKeyTable table = shown_key_table();
  if (key < 0 || key >= table.count) return false;
  rect = table.rows[key];
  rect.left += table.dx;
  rect.right += table.dx;
  rect.top += table.dy;
  rect.bottom += table.dy;
  return true;
}

}  // namespace zephyl
