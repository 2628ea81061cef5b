// What the pen does on the plot, by the cursor: trace, box zoom, pan, rotate. A running program that watches
// the pen takes it for itself.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "engine/hooks.h"
#include "engine/state.h"
#include "engine/values.h"
#include "plot/pen_position.h"
#include "plot/plot.h"
#include "plot/plot_marks.h"
#include "plot/plot_screen.h"
#include "plot/plot_slots.h"
#include "plot/surface_plot.h"
#include "plot/trace.h"

namespace zephyl {

namespace {

// A touch lies within the picture; a drag may go one pixel beyond it, to the far bounds of the view.
constexpr TRect TOUCH_AREA = {PLOT_LEFT, PLOT_TOP, PLOT_LEFT + PLOT_WIDTH - 1, PLOT_TOP + PLOT_HEIGHT - 1};

struct TDrag {
  bool active = false;  // the pen went down on the plot and is still there
  TPoint start;
  TPoint at;
};
TDrag drag;

TPoint plot_pixel(int x, int y) {
  return {std::clamp(x - PLOT_LEFT, 0, PLOT_WIDTH), std::clamp(y - PLOT_TOP, 0, PLOT_HEIGHT)};
}

// --- Trace

void trace_pen() {
  if (!plots_enabled() || !trace_at(drag.at)) show_plot();
}

// --- Box zoom

constexpr int LEAST_BOX = 10;  // pixels; a box must be larger

void box_move() {
  draw_dotted_frame(begin_marks(), drag.start, drag.at);
  show_marks();
}

void box_up() {
  const auto [left, right] = std::minmax(drag.start.x, drag.at.x);
  const auto [top, bottom] = std::minmax(drag.start.y, drag.at.y);
  show_plot();
  if (right - left <= LEAST_BOX || bottom - top <= LEAST_BOX) return;
  set_plot_view(pen_x({left, 0}), pen_y({0, bottom}), pen_x({right, 0}), pen_y({0, top}));
}

// --- Pan

void pan_move() {
  TSurface& marks = plot_screen().marks;
  constexpr TColour grey = rgb(0xD0, 0xD0, 0xD0);
  if (const TBitmap* brush = hooks.bitmap("CHECKERED_BRUSH"))
    marks.fill_pattern(PLOT_AREA, *brush, grey, WHITE);
  marks.blit(drag.at.x - drag.start.x, drag.at.y - drag.start.y, PLOT_WIDTH, PLOT_HEIGHT, plot_screen().plot,
             0, 0);
  show_marks();
}

void pan_up() {
  constexpr int least_drag = 2;
  const int columns = drag.at.x - drag.start.x, rows = drag.at.y - drag.start.y;
  if (std::abs(columns) < least_drag && std::abs(rows) < least_drag) return show_plot();
  const double dx = columns * pixel_width(), dy = rows * pixel_height();
  const TPlotVariables& view = plot_variables;
  if (!set_plot_view(view.xMin - dx, view.yMin + dy, view.xMax - dx, view.yMax + dy)) show_plot();
}

// --- Rotate

void rotate_move() { show_rotated(drag.at.x - drag.start.x, drag.at.y - drag.start.y); }

void rotate_up() {
  if (!plots_enabled()) return;
  plot_variables.rotation_x += drag.at.x - drag.start.x;
  plot_variables.rotation_y += drag.at.y - drag.start.y;
  hooks.plot_changed();
}

// --- All of them

void do_nothing() {}

struct TCursorActions {
  void (*down)();
  void (*move)();
  void (*up)();
};

// By TPlotCursor. What a trace has marked stays when the pen is lifted.
constexpr TCursorActions cursor_actions[] = {{trace_pen, trace_pen, do_nothing},
                                             {show_plot, box_move, box_up},
                                             {show_plot, pan_move, pan_up},
                                             {show_plot, rotate_move, rotate_up}};

const TCursorActions& current_cursor() { return cursor_actions[active_plot_cursor()]; }

// --- Programs

bool stylus_watched() { return state.program_running && state.plot_stylus_x != undefined_value; }
bool buttons_watched() { return state.program_running && state.plot_button != -1; }

void store_stylus() {
  if (!stylus_watched()) return;
  state.plot_stylus_x = pen_x(drag.at);
  state.plot_stylus_y = pen_y(drag.at);
}

// True if a program watches the pen or the keys: the plot stays as it is then.
bool program_takes_pen() {
  store_stylus();
  return stylus_watched() || buttons_watched();
}

}  // namespace

bool plot_pen_down(int x, int y) {
  drag.active = state.calcMode == PLOT_MODE && TOUCH_AREA.contains(x, y);
  if (!drag.active) return false;
  drag.start = drag.at = plot_pixel(x, y);
  // A program that watches the pen goes on meanwhile, any other waits for the end of the drag.
  state.drag_in_progress = !program_takes_pen();
  if (state.drag_in_progress) current_cursor().down();
  return true;
}

void plot_pen_move(int x, int y) {
  if (!drag.active) return;
  drag.at = plot_pixel(x, y);
  if (!program_takes_pen() && state.drag_in_progress) current_cursor().move();
}

void plot_pen_up(int x, int y) {
  if (!drag.active) return;
  drag.active = false;
  drag.at = plot_pixel(x, y);
  if (!program_takes_pen() && state.drag_in_progress) current_cursor().up();
  state.drag_in_progress = false;
}

void forget_pen() { drag.active = false; }

}  // namespace zephyl
