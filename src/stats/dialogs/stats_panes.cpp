// What the line chart and the histogram share: the panes of x and y.

#include <cmath>

#include "engine/format.h"
#include "engine/hooks.h"
#include "engine/state.h"
#include "stats/dialogs/stats_plots.h"
#include "stats/stats.h"

namespace zephyl {

namespace {

constexpr int PANE_LEFT = 5;
constexpr int PANE_RIGHT = 225;
constexpr int INNER_LEFT = 22;
constexpr int INNER_RIGHT = 223;
constexpr int FRAME_GAP = 2;

// Turned by a quarter, from the row upwards: glyphs 17 pixels high are columns 17 wide.
void write_upwards(TSurface& picture, const char* text, int x, int bottom) {
  for (int y = bottom; *text; ++text) {
    const TBitmap* const glyph = hooks.character_glyph(static_cast<unsigned char>(*text));
    if (!glyph) continue;
    for (int column = 0; column < glyph->width; ++column)
      for (int row = 0; row < glyph->height; ++row)
        if (glyph->ink(column, row)) picture.set_pixel(x + row, y - column, BLACK);
    y -= glyph->width;
  }
}

}  // namespace

std::vector<TStatsPane> stats_panes() {
  if (!two_variable_stats()) return {{stats.x, "x Plot", 8, 202, 120}};
  return {{stats.x, "x Plot", 8, 96, 70}, {stats.y, "y Plot", 115, 96, 179}};
}

void draw_pane(TSurface& picture, const TStatsPane& pane) {
  const TRect paper = {PANE_LEFT, pane.top - FRAME_GAP, PANE_RIGHT, pane.top + pane.height + FRAME_GAP};
  picture.fill(paper, WHITE);
  picture.frame(paper, BLACK);
  picture.frame({INNER_LEFT, pane.top - 1, INNER_RIGHT, pane.top + pane.height + 1}, PLOT_FRAME);
  write_upwards(picture, pane.heading, PANE_LEFT, pane.heading_row + pane.height / 8);
}

void draw_plus(TSurface& picture, int x, int y, TColour colour) {
  picture.line({x - 1, y}, {x + 1, y}, colour);
  picture.line({x, y - 1}, {x, y + 1}, colour);
}

double plot_share(double v, double low, double high, double span) {
  if (high == low) return 0.0;
  if (!std::isfinite(high - low)) return plot_share(v / 2, low / 2, high / 2, span);
  const double factor = span / (high - low);
  // The factor of the smallest ranges has no place in a double, the share has.
  return std::isfinite(factor) ? (v - low) * factor : (v - low) / (high - low) * span;
}

std::string plot_number(double value) {
  char text[RESULT_TEXT_SIZE];
  format_real(text, value, FORMAT_FIXED, 4, false);
  return text;
}

}  // namespace zephyl
