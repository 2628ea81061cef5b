#include "faceplate/key_path.h"

#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/state.h"
#include "faceplate/alpha_entry.h"
#include "faceplate/hit_test.h"
#include "faceplate/indicators.h"
#include "faceplate/key_feedback.h"
#include "faceplate/key_maps.h"
#include "faceplate/modes.h"
#include "faceplate/program_edit.h"
#include "faceplate/typed_keys.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int FIRST_VIEW_KEY = 7;  // of PLOT_MODE
constexpr int LAST_VIEW_KEY = 11;
constexpr int STATS_COMMA_KEY = 19;
constexpr int RUN_KEY = 49;

void key_click() {
  if (settings.keyClick) platform().play_click();
}

// By TCalcMode.
constexpr const TKeyMap* key_maps[] = {&base_key_map,     &comp_key_map, &stats_key_map,  &program_key_map,
                                       &periodic_key_map, &plot_key_map, &table_key_map, &table_key_map};

int unknown_mode(bool& needs_repaint) {
  platform().show_message("Invalid calculator mode", "key_pressed_decoder");
  needs_repaint = true;
  return KEY_CONSUMED;
}

// A program that watches the view keys takes them for itself.
bool program_takes(int key) {
  const bool watched = state.calcMode == PLOT_MODE && state.program_running && state.plot_button != -1;
  if (!watched || key < FIRST_VIEW_KEY || key > LAST_VIEW_KEY) return false;
  state.plot_button = key - FIRST_VIEW_KEY + 1;
  return true;
}

int do_key(bool& needs_repaint, int key) {
  const bool known = state.calcMode >= BASE_MODE && state.calcMode <= LIST_MODE;
  return known ? press_mapped_key(*key_maps[state.calcMode], key) : unknown_mode(needs_repaint);
}

bool has_run_key() {
  return state.calcMode == BASE_MODE || state.calcMode == COMP_MODE || state.calcMode == STATS_MODE;
}

void end_shifts(bool needs_repaint) {
  if (!state.blue_shift && !state.orange_shift) return;
  state.blue_shift = state.orange_shift = false;
  if (!needs_repaint) redraw_part(PART_SHIFTS);
}

// Any key ends the pause of a program, but for those that work through it. The run key stops the program
// while it still stands at its pause.
bool ends_pause(int key, const KeyRect& rect) {
  if (!state.key_wait || rect.tap_through) return false;
  key_click();
  bool needs_repaint = false;
  if (key == RUN_KEY && has_run_key()) do_key(needs_repaint, key);
  state.key_wait = false;
  end_shifts(needs_repaint);  // a typed brace has set one
  return true;
}

void take_token(int token) {
  if (state.alpha_active) return append_alpha_character(token);
  if (state.calcMode == PROGRAM_EDIT_MODE) return add_edited_statement(token);
  if (errors.error_flag || !state.init_done) return;
  insert_token(false, static_cast<TToken>(token));
}

void take_result(int result, bool needs_repaint) {
  if (result >= 0 && !program_works()) take_token(result);
  if (result != KEY_CONSUMED) end_shifts(needs_repaint);
}

int decode(int key, bool typed, bool& needs_repaint) {
  if (!state.alpha_active) return key_pressed_decoder(needs_repaint, key);
  key_click();
  return alpha_key_pressed(key, typed);
}

void press_key(int key, bool typed) {
  bool needs_repaint = false;
  const int result = decode(key, typed, needs_repaint);
  take_result(result, needs_repaint);
  if (needs_repaint) platform().invalidate(false);
}

// A comma typed in STATS_MODE would clear the statistics: only a tap does that.
bool dropped(int key, bool tap) {
  return state.calcMode == STATS_MODE && !state.alpha_active && !tap && key == STATS_COMMA_KEY;
}

}  // namespace

int key_pressed_decoder(bool& needs_repaint, int key) {
  // The dead pixel of the plot screen is a key to the hit test only.
  if (state.calcMode == PLOT_MODE && key == 0) return KEY_CONSUMED;
  key_click();
  return do_key(needs_repaint, key);
}

void handle_faceplate_input(int x, int y, int character, int cursor_key) {
  const bool tap = character < 0 && cursor_key < 0;
  KeyRect rect;
  const int key = key_hit_test(x, y, character, cursor_key, rect);
  if (key == NO_KEY || dropped(key, tap)) return;
  if (tap) press_key_feedback(rect.rect());
  if (program_takes(key) || ends_pause(key, rect)) return;
  press_key(key, !tap);
}

}  // namespace zephyl
