// The command that writes a string onto the drawing layer, in the glyphs of the display lines.

#include <algorithm>
#include <cstring>

#include "collections/string_calls.h"
#include "engine/hooks.h"
#include "plot/drawing.h"
#include "plot/drawing_operations.h"
#include "plot/plot_mapping.h"

namespace zephyl {

namespace {

// The text with its top left at a pixel, each glyph on a block of the back colour if `with_back`.
void draw_text(const char* text, int column, int row, bool with_back) {
  TSurface& bitmap = drawing_bitmap();
  for (; *text && column < PLOT_WIDTH; ++text) {
    const TBitmap* glyph = hooks.character_glyph(static_cast<unsigned char>(*text));
    if (!glyph) continue;
    if (with_back)
      bitmap.fill({column, row, column + glyph->width - 1, row + glyph->height - 1}, drawing.back_colour);
    bitmap.blit_glyph(*glyph, column, row, drawing.draw_colour);
    column += glyph->width;
  }
}

// string, x, y, 1 for a background
void draw_string(const TFamilyCall& call) {
  int back;
  TStringOperands operands;
  if (!read_string_operands(call, 1, operands) || !read_switch(call.numbers[2], back)) return;
  if (!operands.first->text[0]) return;
  const TPlotMapping& view = plot_mapping();
  draw_text(operands.first->text, static_cast<int>(clamp_pixel(view.column(call.numbers[0].re))),
            static_cast<int>(clamp_pixel(view.row(call.numbers[1].re))), back != 0);
  drawing_changed();
}

}  // namespace

void register_drawing_text() { operations[OP_DRAW_STRING].string = drawing_command<draw_string>; }

}  // namespace zephyl
