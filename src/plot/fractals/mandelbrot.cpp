// Mandelbrot() and Julia(: each pixel of the drawing layer coloured by how fast its point escapes.

#include <algorithm>
#include <cmath>

#include "plot/drawing.h"
#include "plot/drawing_operations.h"
#include "plot/fractals/escape_time.h"
#include "plot/fractals/fractals.h"
#include "plot/fractals/palette.h"
#include "plot/plot_mapping.h"
#include "plot/plot_variables.h"

namespace zephyl {

namespace {

constexpr int REFRESH_ROWS = 10;
constexpr double BOUND = 3.0;

// Pictures of finer steps, which integers of 25 binary places can't tell apart, have no bound.
constexpr double FINE_STEP = 3e-08;

bool is_fine_part(double part) { return part != 0.0 && std::fabs(part) < FINE_STEP; }

// True for points of the two large parts of the Mandelbrot set, the cardioid and the disc to its left, which
// never escape.
bool inside_large_parts(double x, double y) {
  const double from_cusp = x - 0.25, y_squared = y * y;
  const double q = from_cusp * from_cusp + y_squared;
  return q * (q + from_cusp) <= 0.25 * y_squared || (x + 1.0) * (x + 1.0) + y_squared <= 0.0625;
}

}  // namespace

TEscapePicture mandelbrot_picture() {
  const TPlotVariables& view = plot_variables;
  TEscapePicture picture;
  picture.left = view.xMin;
  picture.top = view.yMax;
  picture.dx = (view.xMax - view.xMin) * 0.004424778761061947;
  picture.dy = (view.yMin - view.yMax) * 0.005555555555555556;
  picture.bounded = std::fabs(picture.dx) >= FINE_STEP && std::fabs(picture.dy) >= FINE_STEP;
  return picture;
}

TEscapePicture julia_picture(const TValue& c) {
  TEscapePicture picture = mandelbrot_picture();
  picture.is_julia = true;
  picture.c = c;
  if (is_fine_part(c.re) || is_fine_part(c.im)) picture.bounded = false;
  picture.all_outside = picture.bounded && (std::fabs(c.re) >= BOUND || std::fabs(c.im) >= BOUND);
  return picture;
}

namespace {

// The points of a row that have to be counted, with their columns.
struct TRowPoints {
  TEscapeBatch batch;
  std::uint8_t columns[TEscapeBatch::LIMIT];

  void add(const TEscapePicture& picture, int column, double x, double y) {
    const int i = batch.count++;
    columns[i] = static_cast<std::uint8_t>(column);
    batch.z_re[i] = picture.is_julia ? x : 0.0;
    batch.z_im[i] = picture.is_julia ? y : 0.0;
    batch.c_re[i] = picture.is_julia ? picture.c.re : x;
    batch.c_im[i] = picture.is_julia ? picture.c.im : y;
  }
};

}  // namespace

void scan_escape_row(const TEscapePicture& picture, int row, std::uint8_t* entries) {
  static TRowPoints points;
  std::fill(entries, entries + PLOT_WIDTH, std::uint8_t{ESCAPE_ROUNDS});
  const double y = row * picture.dy + picture.top;
  if (picture.all_outside || (picture.bounded && std::fabs(y) >= BOUND)) return;
  points.batch.count = 0;
  for (int column = 0; column < PLOT_WIDTH; ++column) {
    const double x = column * picture.dx + picture.left;
    if (picture.bounded && std::fabs(x) >= BOUND) continue;
    if (!picture.is_julia && inside_large_parts(x, y))
      entries[column] = 0;
    else
      points.add(picture, column, x, y);
  }
  count_escape_rounds(points.batch);
  for (int i = 0; i < points.batch.count; ++i)
    entries[points.columns[i]] = static_cast<std::uint8_t>(ESCAPE_ROUNDS - points.batch.rounds[i]);
}

namespace {

void draw_escape_picture(const TEscapePicture& picture) {
  const TColour* const palette = escape_palette();
  std::uint8_t entries[PLOT_WIDTH];
  for (int row = 0; row < PLOT_HEIGHT; ++row) {
    scan_escape_row(picture, row, entries);
    TColour* const pixels = drawing_bitmap().row(row);
    for (int column = 0; column < PLOT_WIDTH; ++column) pixels[column] = palette[entries[column]];
    if (row % REFRESH_ROWS == REFRESH_ROWS - 1) drawing_changed();
    if (poll_cancel()) break;
  }
  drawing_changed();
}

void draw_mandelbrot(const TScalarCall&) { draw_escape_picture(mandelbrot_picture()); }
void draw_julia(const TScalarCall& call) { draw_escape_picture(julia_picture(call.args[0])); }

}  // namespace

void register_escape_fractals() {
  operations[OP_MANDELBROT].scalar = drawing_command<draw_mandelbrot>;
  operations[OP_JULIA].scalar = drawing_command<draw_julia>;
}

}  // namespace zephyl
