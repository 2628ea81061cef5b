// The key map of BASE_MODE. Of the shifts it has only the blue one, on key 0.

#include <iterator>

#include "engine/calculator.h"
#include "engine/state.h"
#include "faceplate/indicators.h"
#include "faceplate/key_actions.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"

namespace zephyl {

namespace {

int cycle_base(int) {
  constexpr int next[] = {U_DEC, U_BIN, U_HEX, U_OCT};  // behind U_BIN, U_OCT, U_DEC, U_HEX
  settings.baseType = next[settings.baseType];
  redraw_part(PART_BASE_TYPE);
  refresh_result();
  return KEY_DONE;
}

int cycle_bits(int) {
  constexpr int next[] = {BITS_16, BITS_32, BITS_8};
  settings.baseBits = next[settings.baseBits];
  redraw_part(PART_BASE_BITS);
  refresh_result();
  return KEY_DONE;
}

// first and last key, plain, blue
constexpr TKeyRow rows[] = {
    {0, 0, action(toggle_blue)},
    {1, 1, action(cycle_base, NOT_RUNNING)},
    {2, 2, action(cycle_bits, NOT_RUNNING)},
    {3, 3, token(3), token(203)},
    {4, 4, token(4), token(204)},
    {5, 5, token(505), token(605)},
    {6, 6, token(506), token(606)},
    {7, 7, token(507), token(607)},
    {8, 8, token(508)},
    {9, 9, token(509)},
    {10, 10, action(recall_variable, IDLE_ONLY), action(store_variable, IDLE_ONLY)},
    {11, 11, token(511)},
    {12, 12, token(512)},
    {13, 13, token(513)},
    {14, 14, token(514)},
    {15, 15, token(515)},
    {16, 16, token(516)},
    {17, 17, token(517)},
    {18, 18, token(518)},
    {19, 19, token(519), token(619)},
    {20, 20, action(delete_at_cursor, NOT_RUNNING), action(do_nothing)},
    {21, 21, action(move_left, NOT_RUNNING), action(move_left, NOT_RUNNING)},
    {22, 22, action(move_right, NOT_RUNNING), action(move_right, NOT_RUNNING)},
    {23, 25, action(enter_key_number)},
    {26, 26, action(evaluate_and_enter, IDLE_ONLY), action(remove_last_stats_entry, NOT_ON_ERROR)},
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

const TKeyMap base_key_map = {rows, std::size(rows)};

}  // namespace zephyl
