#include "faceplate/keys_comp.h"

#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "faceplate/indicators.h"
#include "faceplate/key_path.h"
#include "faceplate/later_keys.h"
#include "faceplate/modes.h"
#include "faceplate/result_line_view.h"
#include "plot/plot_variables.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

constexpr int NO_TOKEN = -1;

enum : unsigned { ALWAYS = 0, NOT_RUNNING = 1, NOT_ON_ERROR = 2 };

// One meaning of a key: a token, or an action that gives the key's result. Neither: the key has no such
// meaning, and the plain one stands in.
struct TMeaning {
  int token = NO_TOKEN;
  int (*act)(int key) = nullptr;
  unsigned refused = ALWAYS;

  constexpr bool defined() const { return token != NO_TOKEN || act; }
};

struct TKeyRow {
  TMeaning plain;
  TMeaning blue;
  TMeaning orange;
};

constexpr TMeaning token(int code, unsigned refused = ALWAYS) { return {code, nullptr, refused}; }
constexpr TMeaning action(int (*act)(int key), unsigned refused = ALWAYS) { return {NO_TOKEN, act, refused}; }
constexpr TMeaning none;

int toggle_orange(int) {
  state.orange_shift = !state.orange_shift;
  state.blue_shift = false;
  redraw_part(PART_ORANGE);
  redraw_part(PART_BLUE);
  return KEY_CONSUMED;
}

int toggle_blue(int) {
  state.blue_shift = !state.blue_shift;
  state.orange_shift = false;
  redraw_part(PART_ORANGE);
  redraw_part(PART_BLUE);
  return KEY_CONSUMED;
}

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

int delete_at_cursor(int) {
  delete_token();
  return KEY_DONE;
}

int move_left(int) {
  cursor_left(state.blue_shift);
  return KEY_DONE;
}

int move_right(int) {
  cursor_right(state.blue_shift);
  return KEY_DONE;
}

int evaluate(int) {
  evaluate_expression(false);
  return KEY_DONE;
}

// The result goes where the fourth tab leads: to the statistics, also from COMP and BASE.
int evaluate_and_enter(int) {
  const bool to_statistics = state.dynamic_mode == STATS_MODE || state.dynamic_mode == BASE_MODE;
  if (evaluate_expression(false) && to_statistics) enter_answer_into_stats();
  return KEY_DONE;
}

int remove_last_entry(int) {
  delete_last_stats_row();
  return KEY_DONE;
}

int plot_variable(int) {
  constexpr int variables[] = {SLOT_X, SLOT_THETA, SLOT_T};  // by TPlotType
  if (plot_variables.plotType == PLOT_3D) return KEY_DONE;
  return recall_token(variables[plot_variables.plotType]);
}

int all_clear(int) {
  clear_calculator(true);
  return KEY_DONE;
}

int tab(int key) {
  press_tab(key - 43);
  return KEY_DONE;
}

int scroll_left(int) {
  scroll_result_left();
  return KEY_DONE;
}

int scroll_right(int) {
  scroll_result_right();
  return KEY_DONE;
}

constexpr unsigned IDLE_ONLY = NOT_RUNNING | NOT_ON_ERROR;

// plain, blue, orange
constexpr TKeyRow comp_keys[] = {
    /* 0 */ {action(toggle_orange), none, none},
    /* 1 */ {action(toggle_blue), none, none},
    /* 2 */ {action(toggle_hyp), none, none},
    /* 3 */ {token(3), token(203), none},
    /* 4 */ {token(4), token(204), none},
    /* 5 */ {action(trigonometric), none, none},
    /* 6 */ {action(trigonometric), none, none},
    /* 7 */ {action(trigonometric), none, none},
    /* 8 */ {token(8, NOT_RUNNING), none, none},
    /* 9 */ {token(9, NOT_RUNNING), none, none},
    /* 10 */ {none, none, none},
    /* 11 */ {token(11), token(111), none},
    /* 12 */ {token(12), token(112), none},
    /* 13 */ {token(13), token(113), none},
    /* 14 */ {token(14), none, none},
    /* 15 */ {token(15), token(115), none},
    /* 16 */ {action(cycle_angle, NOT_RUNNING), action(angle_mark), none},
    /* 17 */ {token(17), token(117), token(217)},
    /* 18 */ {token(18), token(120), none},
    /* 19 */ {token(20), token(19), none},
    /* 20 */ {action(delete_at_cursor, NOT_RUNNING), none, none},
    /* 21 */ {action(move_left, NOT_RUNNING), action(move_left, NOT_RUNNING), none},
    /* 22 */ {action(move_right, NOT_RUNNING), action(move_right, NOT_RUNNING), none},
    /* 23 */ {token(23), token(173), token(123)},
    /* 24 */ {token(24), none, none},
    /* 25 */ {token(25, IDLE_ONLY), none, none},
    /* 26 */ {action(evaluate_and_enter, IDLE_ONLY), none, action(plot_variable)},
    /* 27 */ {action(all_clear, NOT_RUNNING), action(remove_last_entry, NOT_ON_ERROR), none},
    /* 28 */ {token(28), none, none},
    /* 29 */ {token(29), none, none},
    /* 30 */ {token(30), none, none},
    /* 31 */ {token(31), none, none},
    /* 32 */ {token(32), none, none},
    /* 33 */ {token(33), none, none},
    /* 34 */ {token(34), none, none},
    /* 35 */ {token(35), none, none},
    /* 36 */ {token(36), none, none},
    /* 37 */ {token(37), none, none},
    /* 38 */ {token(38), none, none},
    /* 39 */ {token(39), none, none},
    /* 40 */ {token(40), none, none},
    /* 41 */ {token(41), none, none},
    /* 42 */ {action(evaluate, NOT_ON_ERROR), none, none},
    /* 43 */ {action(tab), none, none},
    /* 44 */ {action(tab), none, none},
    /* 45 */ {action(tab), none, none},
    /* 46 */ {action(tab), none, none},
    /* 47 */ {action(tab), none, none},
    /* 48 */ {action(tab), none, none},
    /* 49 */ {none, none, none},
    /* 50 */ {action(scroll_left), none, none},
    /* 51 */ {action(scroll_right), none, none},
};
constexpr int COMP_KEY_COUNT = sizeof comp_keys / sizeof comp_keys[0];
static_assert(COMP_KEY_COUNT == 52);

const TMeaning& shifted(const TKeyRow& row, TKeyMeaning meaning) {
  if (meaning == MEANING_BLUE) return row.blue;
  return meaning == MEANING_ORANGE ? row.orange : row.plain;
}

TKeyMeaning wanted_meaning() {
  if (state.blue_shift) return MEANING_BLUE;
  return state.orange_shift ? MEANING_ORANGE : MEANING_PLAIN;
}

bool refused(const TMeaning& meaning) {
  const bool running = state.program_running && !state.at_prompt;
  return ((meaning.refused & NOT_RUNNING) && running) ||
         ((meaning.refused & NOT_ON_ERROR) && errors.error_flag);
}

}  // namespace

int comp_key_pressed(int key) {
  if (key < 0 || key >= COMP_KEY_COUNT) return KEY_DONE;
  const TKeyRow& row = comp_keys[key];
  TKeyMeaning wanted = wanted_meaning();
  if (is_later_key(key, wanted)) return KEY_DONE;
  if (!shifted(row, wanted).defined()) wanted = MEANING_PLAIN;
  const TMeaning& meaning = shifted(row, wanted);
  if (is_later_key(key, wanted) || !meaning.defined() || refused(meaning)) return KEY_DONE;
  return meaning.act ? meaning.act(key) : meaning.token;
}

}  // namespace zephyl
