// LSystem(: a turtle's walk over rules that expand into themselves (A. Lindenmayer; the turtle by P.
// Prusinkiewicz, "The Algorithmic Beauty of Plants", 1990), drawn from the origin, or fitted to the view by a
// first walk that only measures.

#include "collections/string_calls.h"
#include "plot/drawing.h"
#include "plot/drawing_operations.h"
#include "plot/fractals/fit_scale.h"
#include "plot/fractals/fractals.h"
#include "plot/fractals/l_system_turtle.h"

namespace zephyl {

namespace {

constexpr int REFRESH_LINES = 1000;

// What a drawing walk knows.
struct TPen {
  bool fitted = false;
  TFitScale fit;
  int lines = 0;
};

void measure_place(void* context, double x, double y, bool) { static_cast<TExtent*>(context)->take(x, y); }

void draw_place(void* context, double x, double y, bool line) {
  TPen& pen = *static_cast<TPen*>(context);
  const double to_x = pen.fitted ? pen.fit.x(x) : x, to_y = pen.fitted ? pen.fit.y(y) : y;
  if (!line) return move_pen(to_x, to_y);
  draw_line_to(to_x, to_y);
  if (++pen.lines % REFRESH_LINES == 0) drawing_changed();
}

void draw_l_system(const TLSystemGrammar& grammar, TLSystemSettings settings) {
  TPen pen;
  pen.fitted = settings.length == 0.0;
  if (pen.fitted) settings.length = 1.0;
  TLSystemTurtle turtle(grammar, settings);
  if (pen.fitted) {
    TExtent extent;
    if (!turtle.walk(measure_place, &extent)) return;
    pen.fit = fit_scale(extent);
  }
  turtle.walk(draw_place, &pen);
  drawing_changed();
}

TLSystemSettings read_settings(const TFamilyCall& call) {
  TLSystemSettings settings;
  settings.order = checked_integer(call.numbers[0].re, 0, L_SYSTEM_ORDER_LIMIT, ERR_DOMAIN);
  settings.turn_angle = call.numbers[1].re;
  settings.scale = call.numbers[2].re;
  settings.start_angle = call.numbers[3].re;
  settings.length = call.numbers[4].re;
  return settings;
}

// string, order, turn angle, scale, start angle, line length (0: fit to the view)
void l_system_command(const TFamilyCall& call) {
  TStringOperands operands;
  if (!read_string_operands(call, 1, operands)) return;
  const TLSystemSettings settings = read_settings(call);
  if (errors.error_flag || !operands.first->text[0]) return;
  TLSystemGrammar grammar;
  switch (grammar.read(operands.first->text)) {
    case GRAMMAR_READ:
      return draw_l_system(grammar, settings);
    case GRAMMAR_TOO_LONG:
      return report_error(ERR_MEMORY_LIMIT);
    case GRAMMAR_MALFORMED:
      return;  // in silence
  }
}

}  // namespace

void register_l_systems() { operations[OP_L_SYSTEM].string = drawing_command<l_system_command>; }

}  // namespace zephyl
