// The plot screen as others work it: its keys, the pen, and when it is drawn. All of it belongs to PLOT_MODE;
// the keys may be called in any mode and then only change what the next plot shows.
#pragma once

#include "plot/plot_mapping.h"

namespace zephyl {

// Where the plot surface lies on the screen.
constexpr int PLOT_LEFT = 7;
constexpr int PLOT_TOP = 6;

// --- Drawing

// The plot must be drawn anew: with the next paint in PLOT_MODE, which this asks for, or as soon as that mode
// is entered. For every change of view, setup, functions or drawing (hooks.plot_changed).
void request_plot();
// The full drawing, at once: drawing layer, grid, axes, labels, and the plots of the current type, which a
// tap cancels. While a program runs or an evaluation looks into the queue no plot is drawn, only noted; the
// rest shows.
void plot_it();
// What the screen shows in the plot's place: the plot, or the plot under a cursor. Draws it first if it must
// be. For the paint of the PLOT screen.
const TSurface& shown_plot();
// True while plot_it works: painting then only copies.
bool is_plotting();
// Shows the plot without cursor marks.
void show_plot();

// --- Keys

void zoom_in();
void zoom_out();
// The view by a quarter of its size.
void pan_left();
void pan_right();
void pan_up();
void pan_down();
// The origin in the middle, the view's size as it is.
void cursor_home();
// TPlotCursor; its lamps and the title follow.
void set_plot_cursor(int cursor);
void open_plot_setup();
void open_plot_functions();
// Calculates what is chosen there and shows it over the plot, or opens the table. Not in 3D.
void open_plot_calculate();
void open_plot_table();

// The Plot key of COMP_MODE: the entry line, which has compiled, goes into a free slot of the current plot
// type, and Plot Functions opens.
void enter_plot_function();

// --- The pen, in pixels of the screen

// True if the plot takes the touch: it lies on the plot surface and the mode is PLOT_MODE.
bool plot_pen_down(int x, int y);
void plot_pen_move(int x, int y);
void plot_pen_up(int x, int y);
// A drag that is under way has no effect any more.
void forget_pen();

void reset_plot();
// Fills in the hooks of the plot.
void register_plot();

}  // namespace zephyl
