#include "support/states.h"

#include <cstdio>
#include <cstring>

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/records.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "persistence/save_items.h"
#include "persistence/state_records.h"
#include "plot/drawing.h"
#include "plot/plot_slots.h"
#include "plot/plot_variables.h"
#include "plot/zoom_locks.h"
#include "stats/stats.h"
#include "tools/tvm_state.h"

namespace zephyl {

namespace {

// Numbers of all magnitudes with up to 14 digits, so that they come back exactly.
class TNumbers {
 public:
  double next() {
    word_ = word_ * 6364136223846793005u + 1442695040888963407u;
    char text[40];
    std::snprintf(
        text, sizeof text, "%s%d.%013llde%d", word_ & 1 ? "-" : "", 1 + static_cast<int>((word_ >> 8) % 9),
        static_cast<long long>((word_ >> 16) % 10000000000000u), static_cast<int>((word_ >> 50) % 200) - 100);
    return std::strtod(text, nullptr);
  }

 private:
  unsigned long long word_ = 1;
};

void fill_expression(TExpression& expression, int seed) {
  expression.count = 1 + seed % EXPRESSION_LIMIT;
  for (int i = 0; i < expression.count; ++i)
    expression.tokens[i] = static_cast<TToken>((seed * 131 + i * 17) % 32001);
}

void fill_numbers(TNumbers& numbers) {
  for (int slot = 0; slot < SLOT_MATRIX_A; ++slot) memory_array[slot] = {numbers.next(), numbers.next()};
  for (int row = 0; row < STATS_LIMIT; ++row) {
    stats.x[row] = numbers.next();
    stats.y[row] = numbers.next();
  }
  settings.statsVar = 1;
  set_stats_count(STATS_LIMIT);
}

void fill_stores(TNumbers& numbers) {
  for (ListRecord& list : stores.lists) {
    for (int i = 0; i < LIST_LIMIT; ++i) list.elements[i] = {numbers.next(), i % 3 ? numbers.next() : 0.0};
    list.last = LIST_LIMIT - 1;
    list.defined = true;
  }
  for (MatrixRecord& matrix : stores.matrices) {
    for (int i = 0; i < MATRIX_LIMIT * MATRIX_LIMIT; ++i)
      matrix.cells[i / MATRIX_LIMIT][i % MATRIX_LIMIT] = i % 5 ? numbers.next() : 0.0;
    matrix.last_row = matrix.last_col = MATRIX_LIMIT - 1;
    matrix.defined = true;
  }
  int length = 180;
  for (TString& string : stores.strings) {
    for (int i = 0; i < length; ++i) string.text[i] = static_cast<char>(33 + (i * 7 + length) % 222);
    string.text[length++] = 0;
  }
}

void fill_expressions() {
  int seed = 0;
  for (int type = 0; type < PLOT_TYPE_COUNT; ++type)
    for (int slot = 0; slot < PLOT_SLOT_COUNT; ++slot) fill_expression(plot_slot(type, slot), ++seed * 7);
  for (int i = 0; i < 9; ++i) fill_expression(function_slots[FIRST_PROGRAM_FUNCTION + i], ++seed * 7);
  for (TExpression& entry : history.entries) fill_expression(entry, ++seed * 7);
  history.count = HISTORY_LIMIT;
  fill_expression(entry_line.expression, 98);
  entry_line.cursor = 50;
}

void fill_options(TNumbers& numbers) {
  settings.angleMode = DEGREES;
  settings.baseBits = BITS_32;
  settings.baseType = U_HEX;
  settings.complexFormat = ST_COMPLEX_P;
  settings.decimalDigits = 7;
  settings.decimalMark = 1;
  settings.keyClick = 1;
  settings.numberFormat = FORMAT_ENGINEERING;
  settings.statsRegress = R_POWER;
  state.calcMode = LIST_MODE;
  state.dynamic_mode = LIST_MODE;
  state.fresh_flag = false;
  state.nothing_evaluated = false;
  answers.ans = {numbers.next(), numbers.next()};
  answers.l_ans_valid = true;
  matrix_view.current_matrix = 3;
  list_view.current_list = 7;
  for (int i = 0; i < 7; ++i) set_tvm_value(i, numbers.next());
  tvm_state.begin = true;
}

void fill_plot(TNumbers& numbers) {
  plot_variables.plotType = PLOT_3D;
  plot_variables.plotType3D = PLOT_SPHERICAL;
  plot_variables.plotCursor = CURSOR_ROTATE;
  plot_variables.connectDots = plot_variables.displayGrid = plot_variables.enablePlots = 0;
  set_plot_view(-1.25, -2.5e-3, 3.75e20, 1e100);
  plot_variables.t = {numbers.next(), numbers.next(), numbers.next()};
  plot_variables.v = {numbers.next(), numbers.next(), numbers.next()};
  plot_variables.zScale = numbers.next();
  plot_variables.rotation_x = numbers.next();
  plot_variables.rotation_y = numbers.next();
  zoom_locks.x = zoom_locks.y = true;
  for (int type = 0; type < PLOT_TYPE_COUNT; ++type) trace_functions.slot[type] = type + 1;
}

// Each colour of sixteen bits once or more.
void fill_drawing() {
  TSurface& picture = drawing_bitmap();
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) {
      const int word = (y * picture.width() + x) & 0xFFFF;
      picture.set_pixel(x, y, rgb((word & 31) << 3, (word >> 5 & 63) << 2, word >> 8 & 248));
    }
  drawing.drawing_used = true;
}

}  // namespace

void fill_state() {
  TNumbers numbers;
  fill_numbers(numbers);
  fill_stores(numbers);
  fill_expressions();
  fill_options(numbers);
  fill_plot(numbers);
  fill_drawing();
}

std::string state_text() {
  const TSaveItems kept = save_items;
  std::memset(save_items.checked, 1, sizeof save_items.checked);
  std::string text;
  append_state_records(text);
  save_items = kept;
  const TSurface& picture = drawing_bitmap();
  for (int i = 0; i < picture.width() * picture.height(); ++i)
    text += std::to_string(picture.pixels()[i]) + " ";
  return text;
}

void empty_state() {
  reset_engine();
  reset_stats();
  reset_plot_variables();
  reset_plot_slots();
  reset_tvm_state();
  reset_drawing();
  clear_calculator(false);
  zoom_locks = {};
  matrix_view = {};
  list_view = {};
  save_items = {};
}

}  // namespace zephyl
