// The commands of the drawing layer that paint no shape: colours, pen, clearing, showing, and the set-up of
// the plot screen for drawing.

#include "plot/drawing_operations.h"

#include "engine/hooks.h"
#include "engine/memory.h"
#include "engine/state.h"
#include "plot/drawing.h"
#include "plot/drawing_colours.h"
#include "plot/fractals/fractals.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

// Red, green, blue, and 1 for the colour behind texts.
void choose_colour(const TScalarCall& call) {
  int back;
  if (!read_switch(call.args[3], back)) return;
  const TColour colour = colour_of_parts(call.args[0].re, call.args[1].re, call.args[2].re);
  (back ? drawing.back_colour : drawing.draw_colour) = colour;
}

void move_to(const TScalarCall& call) { move_pen(call.args[0].re, call.args[1].re); }

void line_to(const TScalarCall& call) {
  draw_line_to(call.args[0].re, call.args[1].re);
  drawing_changed();
}

void clear_command(const TScalarCall&) { clear_drawing(); }

void update_command(const TScalarCall&) {
  drawing.suspend_update = state.program_running;
  update_drawing();
}

void enter_plot_mode() {
  if (state.calcMode == PLOT_MODE) return;
  if (hooks.set_mode) return hooks.set_mode(PLOT_MODE, false);
  state.calcMode = PLOT_MODE;
}

void initialise(const TScalarCall& call) {
  int clear, defaults, plots, grid;
  if (!read_switch(call.args[0], clear) || !read_switch(call.args[1], defaults)) return;
  if (!read_switch(call.args[2], plots) || !read_switch(call.args[3], grid)) return;
  if (clear) clear_drawing();
  if (defaults) set_plot_defaults();
  plot_variables.displayGrid = grid;
  plot_variables.enablePlots = plots;
  const bool shows_already = state.calcMode == PLOT_MODE;
  enter_plot_mode();
  hooks.plot_changed();
  if (shows_already) show_drawing();
}

void set_defaults(const TScalarCall&) { set_plot_defaults(); }

// Takes its place in front of the owners of other items.
void (*clear_other_item)(int item) = nullptr;

void clear_drawing_item(int item) {
  if (item == CLEAR_DRAWING) clear_drawing();
  clear_other_item(item);
}

void register_clearing() {
  if (clear_other_item) return;
  clear_other_item = hooks.clear_item;
  hooks.clear_item = clear_drawing_item;
}

}  // namespace

void register_drawing() {
  operations[OP_COLOR].scalar = drawing_command<choose_colour>;
  operations[OP_MOVE_TO].scalar = drawing_command<move_to>;
  operations[OP_LINE_TO].scalar = drawing_command<line_to>;
  operations[OP_CLR_DRAW].scalar = drawing_command<clear_command>;
  operations[OP_UPDATE_DRAW].scalar = drawing_command<update_command>;
  operations[OP_INIT_DRAW].scalar = drawing_command<initialise>;
  operations[OP_INIT_PLOT].scalar = drawing_command<set_defaults>;
  register_shape_operations();
  register_drawing_text();
  register_drawing_lists();
  register_escape_fractals();
  register_iterated_functions();
  register_l_systems();
  register_clearing();
}

}  // namespace zephyl
