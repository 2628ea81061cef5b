#include "plot/drawing.h"

#include "engine/hooks.h"
#include "engine/state.h"
#include "plot/plot_mapping.h"

namespace zephyl {

TDrawing drawing;

TSurface& drawing_bitmap() {
  static TSurface bitmap(PLOT_WIDTH, PLOT_HEIGHT);
  return bitmap;
}

bool drawing_present() {
  if (!drawing.drawing_used) return false;
  const TColour* pixels = drawing_bitmap().pixels();
  for (int i = 0; i < PLOT_WIDTH * PLOT_HEIGHT; ++i)
    if (pack_565(pixels[i]) != pack_565(WHITE)) return true;
  return false;
}

void clear_drawing() {
  drawing_bitmap().fill(PLOT_AREA, WHITE);
  drawing.draw_colour = BLACK;
  drawing.back_colour = WHITE;
  drawing_changed();
  drawing.drawing_used = false;
}

void reset_drawing() {
  drawing = {};
  drawing_bitmap().fill(PLOT_AREA, WHITE);
}

void draw_line(double x1, double y1, double x2, double y2) {
  const TPlotMapping& view = plot_mapping();
  clipped_line(drawing_bitmap(), view.column(x1), view.row(y1), view.column(x2), view.row(y2),
               drawing.draw_colour);
}

void draw_point(double x, double y) {
  const TPlotMapping& view = plot_mapping();
  draw_dot(drawing_bitmap(), view.column(x), view.row(y), drawing.draw_colour);
}

void move_pen(double x, double y) {
  drawing.pen_x = x;
  drawing.pen_y = y;
}

void draw_line_to(double x, double y) {
  if (drawing.pen_x != undefined_value) draw_line(drawing.pen_x, drawing.pen_y, x, y);
  move_pen(x, y);
}

void update_drawing() {
  drawing.update_pending = false;
  hooks.plot_changed();
  if (state.calcMode == PLOT_MODE) hooks.request_plot_redraw();
}

void show_drawing() {
  if (drawing.suspend_update && state.program_running)
    drawing.update_pending = true;
  else
    update_drawing();
}

void drawing_changed() {
  drawing.drawing_used = true;
  show_drawing();
}

void resume_drawing_updates() {
  drawing.suspend_update = false;
  if (drawing.update_pending) update_drawing();
}

}  // namespace zephyl
