#include "persistence/state_options.h"

#include <algorithm>

#include "collections/list_view.h"
#include "collections/matrix_view.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "persistence/save_items.h"
#include "persistence/state_records.h"
#include "plot/plot_slots.h"
#include "plot/plot_variables.h"
#include "plot/zoom_locks.h"
#include "stats/stats.h"
#include "tools/tvm_state.h"

namespace zephyl {

namespace {

// Exactly one of the four places is set. A number from `low` to `high`, else `otherwise`; a real value has no
// bounds.
struct TOption {
  int number;
  int item;
  int low = 0, high = 0, otherwise = 0;
  int* integer = nullptr;
  bool* flag = nullptr;
  double* real = nullptr;
  // For values that aren't held as they are saved. A null `set`: written only.
  double (*get)(int number) = nullptr;
  void (*set)(int number, double value) = nullptr;
  bool is_real = false;  // of get and set
};

constexpr TOption integer(int number, int item, int* place, int low, int high, int otherwise) {
  TOption option{number, item, low, high, otherwise};
  option.integer = place;
  return option;
}

constexpr TOption flag(int number, int item, bool* place, int otherwise = 0) {
  TOption option{number, item, 0, 1, otherwise};
  option.flag = place;
  return option;
}

constexpr TOption real(int number, int item, double* place) {
  TOption option{number, item};
  option.real = place;
  return option;
}

constexpr TOption computed(int number, int item, double (*get)(int), void (*set)(int, double), int low,
                           int high, int otherwise) {
  TOption option{number, item, low, high, otherwise};
  option.get = get;
  option.set = set;
  return option;
}

constexpr TOption computed_real(int number, int item, double (*get)(int), void (*set)(int, double)) {
  TOption option = computed(number, item, get, set, 0, 0, 0);
  option.is_real = true;
  return option;
}

constexpr int FIRST_TVM_OPTION = 54;

double get_stats_count(int) { return stats.count; }
void take_stats_count(int, double count) { set_stats_count(static_cast<int>(count)); }

double get_stats_variables(int) { return settings.statsVar; }
void take_stats_variables(int, double variables) { set_stats_variables(static_cast<int>(variables)); }

double get_mode(int) { return state.calcMode; }
// No program is under edit after a load.
void take_mode(int, double mode) {
  const int wanted = static_cast<int>(mode);
  state.calcMode = wanted == PROGRAM_EDIT_MODE ? COMP_MODE : wanted;
}

double get_history_count(int) { return history.count; }
void take_history_count(int, double count) {
  history.count = std::min(static_cast<int>(count), HISTORY_LIMIT);
}

double get_result_empty(int) { return state.result_shown ? 0.0 : 1.0; }
void take_result_empty(int, double empty) { state.result_shown = empty == 0.0; }

double get_tvm(int number) { return tvm_value(number - FIRST_TVM_OPTION); }
void take_tvm(int number, double value) { set_tvm_value(number - FIRST_TVM_OPTION, value); }

double get_display_colour(int) { return settings.display_color; }
double get_brightness(int) { return settings.brightness; }

// In the order of writing.
const TOption options[] = {
    computed(0, SAVE_STATS, get_stats_count, take_stats_count, 0, STATS_LIMIT, 0),
    computed(22, SAVE_STATS, get_stats_variables, take_stats_variables, 0, 1, 0),
    integer(23, SAVE_STATS, &settings.statsRegress, 0, 3, 0),
    integer(15, SAVE_ALWAYS, &settings.decimalDigits, 0, 10, 4),
    integer(16, SAVE_ALWAYS, &settings.numberFormat, 0, 3, 0),
    integer(17, SAVE_ALWAYS, &settings.decimalMark, 0, 1, 0),
    integer(18, SAVE_ALWAYS, &settings.angleMode, 0, 2, 0),
    computed(19, SAVE_ALWAYS, get_mode, take_mode, 0, 7, 1),
    integer(20, SAVE_ALWAYS, &settings.baseBits, 0, 2, 1),
    integer(21, SAVE_ALWAYS, &settings.baseType, 0, 3, 2),
    integer(24, SAVE_ALWAYS, &settings.keyClick, 0, 1, 0),
    computed(25, SAVE_HISTORY, get_history_count, take_history_count, 0, 100, 0),
    integer(26, SAVE_ALWAYS, &entry_line.cursor, 0, 101, 0),
    flag(27, SAVE_ALWAYS, &entry_line.cursor_shown),
    flag(28, SAVE_ALWAYS, &state.fresh_flag),
    flag(29, SAVE_ALWAYS, &state.nothing_evaluated),
    real(33, SAVE_ALWAYS, &answers.ans.re),
    computed(34, SAVE_ALWAYS, get_result_empty, take_result_empty, 0, 1, 1),
    flag(35, SAVE_ALWAYS, &answers.ans_valid),
    integer(2, SAVE_PLOT, &plot_variables.displayGrid, 0, 1, 1),
    integer(3, SAVE_PLOT, &plot_variables.connectDots, 0, 1, 1),
    integer(4, SAVE_PLOT, &plot_variables.plotCursor, 0, 3, 0),
    integer(5, SAVE_PLOT, &plot_variables.plotType, 0, 3, 0),
    real(6, SAVE_PLOT, &plot_variables.xMin),
    real(7, SAVE_PLOT, &plot_variables.xMax),
    real(8, SAVE_PLOT, &plot_variables.yMax),
    real(9, SAVE_PLOT, &plot_variables.yMin),
    real(10, SAVE_PLOT, &plot_variables.t.max),
    real(11, SAVE_PLOT, &plot_variables.t.min),
    real(12, SAVE_PLOT, &plot_variables.t.step),
    flag(13, SAVE_PLOT, &zoom_locks.x),
    flag(14, SAVE_PLOT, &zoom_locks.y),
    integer(30, SAVE_PLOT, &trace_functions.slot[PLOT_FUNCTION], 0, 5, 0),
    integer(31, SAVE_PLOT, &trace_functions.slot[PLOT_POLAR], 0, 5, 0),
    integer(32, SAVE_PLOT, &trace_functions.slot[PLOT_PARAMETRIC], 0, 5, 0),
    integer(36, SAVE_PLOT, &trace_functions.slot[PLOT_3D], 0, 5, 0),
    real(37, SAVE_PLOT, &plot_variables.v.max),
    real(38, SAVE_PLOT, &plot_variables.v.min),
    real(39, SAVE_PLOT, &plot_variables.v.step),
    real(40, SAVE_PLOT, &plot_variables.rotation_x),
    real(41, SAVE_PLOT, &plot_variables.rotation_y),
    integer(43, SAVE_PLOT, &plot_variables.plotType3D, 0, 2, 0),
    real(44, SAVE_PLOT, &plot_variables.zScale),
    integer(53, SAVE_PLOT, &plot_variables.enablePlots, 0, 1, 1),
    computed(42, SAVE_ALWAYS, get_display_colour, nullptr, 0, 0, 0),
    computed(45, SAVE_ALWAYS, get_brightness, nullptr, 0, 0, 0),
    integer(46, SAVE_MATRICES, &matrix_view.current_matrix, 0, 10, 0),
    integer(47, SAVE_ALWAYS, &state.dynamic_mode, 0, 100, 2),
    integer(48, SAVE_ALWAYS, &settings.complexFormat, 0, 2, 0),
    real(49, SAVE_ALWAYS, &answers.ans.im),
    flag(50, SAVE_ALWAYS, &answers.m_ans_valid),
    integer(51, SAVE_LISTS, &list_view.current_list, 0, 10, 0),
    flag(52, SAVE_ALWAYS, &answers.l_ans_valid),
    computed_real(54, SAVE_ALWAYS, get_tvm, take_tvm),
    computed_real(55, SAVE_ALWAYS, get_tvm, take_tvm),
    computed_real(56, SAVE_ALWAYS, get_tvm, take_tvm),
    computed_real(57, SAVE_ALWAYS, get_tvm, take_tvm),
    computed_real(58, SAVE_ALWAYS, get_tvm, take_tvm),
    computed_real(59, SAVE_ALWAYS, get_tvm, take_tvm),
    computed_real(60, SAVE_ALWAYS, get_tvm, take_tvm),
    computed_real(61, SAVE_ALWAYS, get_tvm, take_tvm),
    flag(62, SAVE_ALWAYS, &answers.str_ans_valid),
};
static_assert(FIRST_TVM_OPTION + TVM_PMT_AT == 61);

double value_of(const TOption& option) {
  if (option.integer) return *option.integer;
  if (option.flag) return *option.flag ? 1.0 : 0.0;
  return option.real ? *option.real : option.get(option.number);
}

void append_option(std::string& text, const TOption& option) {
  const double value = value_of(option);
  if (option.real || option.is_real)
    append_record(text, "O: %d:%s\r\n", option.number, format_state_number(value));
  else
    append_record(text, "O: %d:%d\r\n", option.number, static_cast<int>(value));
}

}  // namespace

void append_options(std::string& text) {
  for (const TOption& option : options)
    if (is_saved(option.item)) append_option(text, option);
}

void read_option(int number, const TFieldReader& field) {
  const auto found = std::find_if(std::begin(options), std::end(options),
                                  [number](const TOption& option) { return option.number == number; });
  if (found == std::end(options)) return;
  if (found->real) {
    *found->real = field.read_real();
    return;
  }
  const double value =
      found->is_real ? field.read_real() : field.read_bounded(found->low, found->high, found->otherwise);
  if (found->integer) *found->integer = static_cast<int>(value);
  if (found->flag) *found->flag = value != 0.0;
  if (found->set) found->set(number, value);
}

}  // namespace zephyl
