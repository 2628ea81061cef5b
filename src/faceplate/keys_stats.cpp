// The key map of STATS_MODE. Of the shifts it has only the blue one, on key 0.

#include <iterator>

#include "engine/state.h"
#include "faceplate/dialogs/stats_list.h"
#include "faceplate/dialogs/stats_summary.h"
#include "faceplate/indicators.h"
#include "faceplate/key_actions.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"
#include "stats/dialogs/stats_plots.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

int switch_variables(int) {
  set_stats_variables(two_variable_stats() ? 0 : 1);
  redraw_part(PART_STATS_VAR);
  return KEY_DONE;
}

int cycle_regression(int) {
  settings.statsRegress = settings.statsRegress < R_POWER ? settings.statsRegress + 1 : R_LINEAR;
  redraw_part(PART_REGRESSION);
  return KEY_DONE;
}

int clear_statistics(int) {
  clear_stats();
  return KEY_DONE;
}

int list_statistics(int) {
  show_stats_rows();
  return KEY_DONE;
}

int sum_up_statistics(int) {
  show_stats_summary();
  return KEY_DONE;
}

int plot_statistics(int) {
  choose_stats_plot();
  return KEY_DONE;
}

// The statistics values stand 1000 and, with the blue shift, 1100 above the keys.
int statistics_value(int key) { return 1000 + key + (state.blue_shift ? 100 : 0); }

// first and last key, plain, blue
constexpr TKeyRow rows[] = {
    {0, 0, action(toggle_blue)},
    {1, 1, action(switch_variables, NOT_RUNNING)},
    {2, 2, action(list_statistics, IDLE_ONLY)},
    {3, 3, token(3), token(203)},
    {4, 4, token(4), token(204)},
    {5, 5, token(1005)},
    {6, 8, action(statistics_value)},
    {9, 9, action(cycle_regression, NOT_RUNNING), token(1109)},
    {10, 10, action(recall_variable, IDLE_ONLY), action(store_variable, IDLE_ONLY)},
    {11, 16, action(statistics_value)},
    {17, 17, token(17), token(1117)},
    {18, 18, action(remove_last_stats_entry, NOT_ON_ERROR), token(1118)},
    {19, 19, action(clear_statistics, NOT_ON_ERROR), token(1119)},
    {20, 20, action(delete_at_cursor, NOT_RUNNING), action(do_nothing)},
    {21, 21, action(move_left, NOT_RUNNING), action(move_left, NOT_RUNNING)},
    {22, 22, action(move_right, NOT_RUNNING), action(move_right, NOT_RUNNING)},
    {23, 23, token(23), action(sum_up_statistics, IDLE_ONLY)},
    {24, 24, token(24), action(plot_statistics, IDLE_ONLY)},
    {25, 25, action(enter_key_number)},
    {26, 26, action(evaluate_and_enter, IDLE_ONLY)},
    {27, 27, action(all_clear, NOT_RUNNING), action(choose_items_to_clear, IDLE_ONLY)},
    {28, 41, action(enter_key_number)},
    {42, 42, action(evaluate, NOT_ON_ERROR)},
    {43, 48, action(press_calculator_tab)},
    {49, 49, action(run_or_stop_program)},
    {50, 50, action(scroll_left)},
    {51, 51, action(scroll_right)},
};
static_assert(names_each_key(rows, 52));

}  // namespace

const TKeyMap stats_key_map = {rows, std::size(rows)};

}  // namespace zephyl
