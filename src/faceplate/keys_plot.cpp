// The key map of PLOT_MODE.

#include <iterator>

#include "engine/hooks.h"
#include "engine/state.h"
#include "faceplate/indicators.h"
#include "faceplate/key_actions.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"
#include "plot/plot.h"
#include "plot/plot_variables.h"
#include "plot/zoom_locks.h"

namespace zephyl {

namespace {

constexpr double Z_SCALE_LIMIT = 1e100;

// A key that calls a function and is done.
template <void (*act)()>
int call(int) {
  act();
  return KEY_DONE;
}

int press_plot_tab(int key) {
  press_tab(key - 12);
  return KEY_DONE;
}

int toggle_lock(bool& lock) {
  lock = !lock;
  redraw_part(PART_PLOT_LEDS);
  return KEY_DONE;
}

int toggle_x_lock(int) { return toggle_lock(zoom_locks.x); }
int toggle_y_lock(int) { return toggle_lock(zoom_locks.y); }

int scale_z(double factor) {
  plot_variables.zScale *= factor;
  hooks.plot_changed();
  return KEY_DONE;
}

int double_z_scale(int) { return plot_variables.zScale > Z_SCALE_LIMIT ? KEY_DONE : scale_z(2.0); }
int halve_z_scale(int) { return scale_z(0.5); }

int select_cursor(int cursor) {
  set_plot_cursor(cursor);
  return KEY_DONE;
}

int select_plane_cursor(int key) { return select_cursor(key - 20); }

// On a plane the same key calculates.
int rotate_or_calculate(int) {
  if (plot_variables.plotType == PLOT_3D) return select_cursor(CURSOR_ROTATE);
  open_plot_calculate();
  return KEY_DONE;
}

constexpr TKeyRow rows[] = {
    {0, 0, none},  // the dead pixel
    {1, 1, action(call<open_plot_setup>)},
    {2, 2, action(call<open_plot_functions>)},
    {3, 3, action(call<zoom_in>)},
    {4, 4, action(call<zoom_out>)},
    {5, 5, action(toggle_x_lock)},
    {6, 6, action(toggle_y_lock)},
    {7, 7, action(call<cursor_home>)},
    {8, 8, action(call<pan_left>)},
    {9, 9, action(call<pan_right>)},
    {10, 10, action(call<pan_up>)},
    {11, 11, action(call<pan_down>)},
    {12, 17, action(press_plot_tab)},
    {18, 18, action(double_z_scale)},
    {19, 19, action(halve_z_scale)},
    {20, 22, action(select_plane_cursor)},
    {23, 23, action(rotate_or_calculate)},
};
static_assert(names_each_key(rows, 24));

}  // namespace

const TKeyMap plot_key_map = {rows, std::size(rows)};

}  // namespace zephyl
