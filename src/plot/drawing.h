// The drawing layer: a picture behind all plots that programs and expressions paint on. It holds pixels, not
// shapes: a change of the view doesn't move what was drawn. It is kept until it is cleared.
#pragma once

#include "engine/values.h"
#include "platform/surface.h"

namespace zephyl {

struct TDrawing {
  TColour draw_colour = BLACK;
  TColour back_colour = WHITE;
  bool drawing_used = false;    // something was drawn since the last clearing
  bool suspend_update = false;  // the running program shows its drawing itself, by updateDraw()
  bool update_pending = false;  // something was drawn that doesn't show yet
  // The pen of moveTo( and lineTo(, in plot units; undefined_value before their first use.
  double pen_x = undefined_value;
  double pen_y = undefined_value;
};
extern TDrawing drawing;

// The layer, PLOT_WIDTH by PLOT_HEIGHT (plot_mapping.h).
TSurface& drawing_bitmap();

// True if something was drawn and is still there: a pixel that isn't white in sixteen bits (pack_565).
bool drawing_present();

// All white, with the colours as at the start. The pen stays where it is.
void clear_drawing();

// As at the very start, in silence.
void reset_drawing();

// --- Painting, in plot units of the current view. Nothing of these shows before drawing_changed().

void draw_line(double x1, double y1, double x2, double y2);
void draw_point(double x, double y);
void move_pen(double x, double y);
// A line from the pen, unless that was never set, then the pen is there.
void draw_line_to(double x, double y);

// The layer was painted on: it shows at once in PLOT_MODE, and with the plot's next drawing elsewhere. In a
// program that has used updateDraw(), with the next one.
void drawing_changed();
// What lies under the drawing has changed: the screen follows as after a painting.
void show_drawing();
// Shows what was drawn in any case.
void update_drawing();
// A program begins or ends: the effect of updateDraw() ends, and what waited for it shows.
void resume_drawing_updates();

// Fills in the operations and the clearing of the layer.
void register_drawing();

}  // namespace zephyl
