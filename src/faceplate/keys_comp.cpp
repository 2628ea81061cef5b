// The key map of COMP_MODE.

#include <iterator>

#include "engine/calculator.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/dialogs/select_expression.h"
#include "faceplate/dialogs/select_test.h"
#include "faceplate/dialogs/surface_variable.h"
#include "faceplate/indicators.h"
#include "faceplate/key_actions.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"
#include "persistence/constant_dialogs.h"
#include "persistence/conversion_dialog.h"
#include "plot/plot.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

constexpr int SLOT_U = SLOT_T + 1;  // v behind it

int toggle_hyp(int) {
  state.hyp_shift = !state.hyp_shift;
  redraw_part(PART_HYP);
  return KEY_CONSUMED;
}

// sin, cos, tan with their inverses (100 higher) and their hyperbolic forms (200 higher), which use up hyp.
int trigonometric(int key) {
  const int code = key + (state.blue_shift ? 100 : 0) + (state.hyp_shift ? 200 : 0);
  if (state.hyp_shift) {
    state.hyp_shift = false;
    redraw_part(PART_HYP);
  }
  return code;
}

int cycle_angle(int) {
  constexpr int next[] = {GRADS, RADIANS, DEGREES};  // behind RADIANS, DEGREES, GRADS
  settings.angleMode = next[settings.angleMode];
  redraw_part(PART_ANGLE);
  refresh_result();
  return KEY_DONE;
}

int angle_mark(int) {
  constexpr int marks[] = {116, 16, 216};
  return marks[settings.angleMode];
}

int surface_variable() {
  const int chosen = choose_surface_variable();
  return chosen < 0 ? KEY_DONE : recall_token(SLOT_U + chosen);
}

int plot_variable(int) {
  constexpr int variables[] = {SLOT_X, SLOT_THETA, SLOT_T};  // by TPlotType
  if (plot_variables.plotType == PLOT_3D) return surface_variable();
  return recall_token(variables[plot_variables.plotType]);
}

int enter_function(int) {
  enter_plot_function();
  return KEY_DONE;
}

int enter_test(int) {
  const int test = choose_test();
  return test < 0 ? KEY_DONE : test;
}

int enter_constant(int) {
  if (insert_selected_constant() == CONSTANT_ELEMENTS) show_periodic_screen();
  return KEY_DONE;
}

int enter_conversion(int) {
  insert_selected_conversion();
  return KEY_DONE;
}

int take_expression_back(int) {
  show_expressions();
  return KEY_DONE;
}

int write_string(int) {
  start_alpha_entry(ALPHA_STRING);
  return KEY_DONE;
}

// first and last key, plain, blue, orange
constexpr TKeyRow rows[] = {
    {0, 0, action(toggle_orange)},
    {1, 1, action(toggle_blue)},
    {2, 2, action(toggle_hyp)},
    {3, 3, token(3), token(203)},
    {4, 4, token(4), token(204)},
    {5, 7, action(trigonometric)},
    {8, 8, token(8, NOT_RUNNING), action(enter_constant, IDLE_ONLY)},
    {9, 9, token(9, NOT_RUNNING), action(enter_conversion, IDLE_ONLY)},
    {10, 10, action(recall_variable, IDLE_ONLY), action(store_variable, IDLE_ONLY)},
    {11, 11, token(11), token(111)},
    {12, 12, token(12), token(112)},
    {13, 13, token(13), token(113)},
    {14, 14, token(14), action(enter_test, IDLE_ONLY)},
    {15, 15, token(15), token(115)},
    {16, 16, action(cycle_angle, NOT_RUNNING), action(angle_mark)},
    {17, 17, token(17), token(117), token(217)},
    {18, 18, token(18), token(120)},
    {19, 19, token(20), token(19)},
    {20, 20, action(delete_at_cursor, NOT_RUNNING), action(take_expression_back, IDLE_ONLY)},
    {21, 21, action(move_left, NOT_RUNNING), action(move_left, NOT_RUNNING)},
    {22, 22, action(move_right, NOT_RUNNING), action(move_right, NOT_RUNNING)},
    {23, 23, token(23), token(173), token(123)},
    {24, 24, token(24), action(write_string, IDLE_ONLY)},
    {25, 25, token(25, IDLE_ONLY), action(enter_catalog_function, IDLE_ONLY),
     action(enter_system_variable, IDLE_ONLY)},
    {26, 26, action(evaluate_and_enter, IDLE_ONLY), action(enter_function, IDLE_ONLY),
     action(plot_variable, IDLE_ONLY)},
    {27, 27, action(all_clear, NOT_RUNNING), action(remove_last_stats_entry, NOT_ON_ERROR),
     action(choose_items_to_clear, IDLE_ONLY)},
    {28, 41, action(enter_key_number)},
    {42, 42, action(evaluate, NOT_ON_ERROR)},
    {43, 48, action(press_calculator_tab)},
    {49, 49, action(run_or_stop_program)},
    {50, 50, action(scroll_left)},
    {51, 51, action(scroll_right)},
};
static_assert(names_each_key(rows, 52));

}  // namespace

const TKeyMap comp_key_map = {rows, std::size(rows)};

}  // namespace zephyl
