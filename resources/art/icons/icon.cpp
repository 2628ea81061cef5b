#include "icons/icon.h"

#include <algorithm>
#include <cmath>

#include "canvas.h"
#include "sketch.h"
#include "skins.h"

namespace art {

namespace {

constexpr int FINE = 8;  // everything is drawn so many times larger, and each pixel is the mean of a square
constexpr TColour RIM = 0x16222C;
constexpr TColour PAPER_TOP = 0xE6E1BC;

// In pixels of the icon; right and bottom are where the next one begins.
struct TPart {
  double left;
  double top;
  double right;
  double bottom;

  double width() const { return right - left; }
  double height() const { return bottom - top; }
};

TPart inside(const TPart& part, double by) {
  return {part.left + by, part.top + by, part.right - by, part.bottom - by};
}

// How far a point lies beyond the middle stretch of a side whose ends are round.
double beyond(double at, double low, double high, double radius) {
  return std::max({low + radius - at, at - (high - radius), 0.0});
}

void fill_round(TCanvas& canvas, const TPart& part, double radius, TColour top, TColour bottom) {
  for (int y = 0; y < canvas.height(); ++y)
    for (int x = 0; x < canvas.width(); ++x) {
      const double px = (x + 0.5) / FINE, py = (y + 0.5) / FINE;
      if (px < part.left || px > part.right || py < part.top || py > part.bottom) continue;
      const double dx = beyond(px, part.left, part.right, radius),
                   dy = beyond(py, part.top, part.bottom, radius);
      if (dx * dx + dy * dy <= radius * radius)
        canvas.set(x, y, mix(top, bottom, (py - part.top) / part.height()));
    }
}

// What there is room for.
struct TPlan {
  int size;
  int margin;   // from the body to the keys
  int gap;      // between keys
  int columns;  // of keys
  int rows;
  TPart body;
  TPart display;
  TPart keys;
};

TPlan plan_for(int size) {
  TPlan plan{};
  plan.size = size;
  const bool small = size < 32;
  plan.columns = small ? 3 : 4;
  plan.rows = size < 22 ? 2 : size < 48 ? 3 : 4;
  plan.gap = std::max(1, size / 32);
  plan.margin = std::max(small ? 2 : 3, size / 13);
  const int edge = size / 32;
  const int room = size * 13 / 16 - 2 * plan.margin;
  const int key = (room - (plan.columns - 1) * plan.gap) / plan.columns;
  const int across = key * plan.columns + plan.gap * (plan.columns - 1);
  const int left = (size - across) / 2;
  plan.body = {static_cast<double>(left - plan.margin), static_cast<double>(edge),
               static_cast<double>(left + across + plan.margin), static_cast<double>(size - edge)};
  const int inner = static_cast<int>(plan.body.height()) - 2 * plan.margin;
  const int line = (inner * 62 / 100 - (plan.rows - 1) * plan.gap) / plan.rows;
  const int down = line * plan.rows + plan.gap * (plan.rows - 1);
  const double bottom = plan.body.bottom - plan.margin;
  plan.keys = {static_cast<double>(left), bottom - down, static_cast<double>(left + across), bottom};
  plan.display = {plan.keys.left, plan.body.top + plan.margin, plan.keys.right,
                  plan.keys.top - std::max(plan.gap, plan.margin / 2)};
  return plan;
}

void draw_body(TCanvas& canvas, const TPlan& plan) {
  const TSkin& colours = skin(COLOURFUL);
  const double radius = plan.size * 0.11, rim = std::max(0.75, plan.size / 64.0);
  fill_round(canvas, plan.body, radius, RIM, RIM);
  fill_round(canvas, inside(plan.body, rim), radius - rim, mix(colours.shell_top, 0xFFFFFF, 0.35),
             colours.shell_bottom);
  fill_round(canvas, inside(plan.body, 2 * rim), radius - 2 * rim, mix(colours.shell_top, 0xFFFFFF, 0.08),
             colours.shell_bottom);
}

void draw_display(TCanvas& canvas, const TPlan& plan) {
  const double frame = plan.size < 32 ? 0 : std::round(plan.size / 40.0);
  fill_round(canvas, plan.display, plan.size * 0.035, PANEL_DEEP, PANEL_EDGE);
  const TPart paper = inside(plan.display, frame);
  fill_round(canvas, paper, plan.size * 0.02, PAPER_TOP, DISPLAY);
  const double middle = (paper.top + paper.bottom) / 2 * FINE;
  if (plan.size >= 48)
    canvas.stroke((paper.left + 1) * FINE, middle, (paper.right - 1) * FINE, middle, plan.size / 64.0 * FINE,
                  mix(DISPLAY, AXIS, 0.45));
  const auto wave = [&](double part) {
    const double height = paper.height() * 0.34 * FINE;
    return TPoint2{(paper.left + paper.width() * (0.06 + 0.88 * part)) * FINE,
                   middle - height * std::sin(part * 2 * PI)};
  };
  curve(canvas, wave, 0, 1, CURVE, std::max(1.1, plan.size / 22.0) * FINE);
}

const TCapColours& cap_at(const TPlan& plan, int row, int column) {
  const TSkin& colours = skin(COLOURFUL);
  const bool last_row = row == plan.rows - 1, last_column = column == plan.columns - 1;
  if (row == 0 && column == 0) return colours.orange_shift;
  if (row == 0 && column == 1) return colours.blue_shift;
  if (row == 0) return last_column ? colours.clear : colours.mode;
  if (last_column) return last_row ? colours.enter : colours.sign;
  return colours.digit;
}

void draw_cap(TCanvas& canvas, const TPlan& plan, const TPart& key, const TCapColours& colours) {
  const double radius = plan.size < 32 ? 0.4 : plan.size * 0.022;
  const bool has_edges = plan.size >= 48;
  const double edge = plan.size / 96.0;
  if (has_edges)
    fill_round(canvas, {key.left, key.top + edge, key.right, key.bottom + edge}, radius, RIM, RIM);
  fill_round(canvas, key, radius, colours.light, colours.shade);
  const double inset = has_edges ? edge : 0;
  fill_round(canvas, inside(key, inset), radius, colours.top, colours.bottom);
}

void draw_keys(TCanvas& canvas, const TPlan& plan) {
  const double width = (plan.keys.width() + plan.gap) / plan.columns,
               height = (plan.keys.height() + plan.gap) / plan.rows;
  for (int row = 0; row < plan.rows; ++row)
    for (int column = 0; column < plan.columns; ++column) {
      const double left = plan.keys.left + column * width, top = plan.keys.top + row * height;
      draw_cap(canvas, plan, {left, top, left + width - plan.gap, top + height - plan.gap},
               cap_at(plan, row, column));
    }
}

// The mean colour of what is drawn in a pixel's square, and how much of it is.
void append_pixel(std::vector<std::uint8_t>& bytes, const TCanvas& canvas, int x, int y) {
  unsigned sums[3] = {0, 0, 0}, drawn = 0;
  for (int dy = 0; dy < FINE; ++dy)
    for (int dx = 0; dx < FINE; ++dx) {
      const TColour colour = canvas.at(x * FINE + dx, y * FINE + dy);
      if (colour == CLEAR) continue;
      ++drawn;
      for (int channel = 0; channel < 3; ++channel) sums[channel] += colour >> (16 - 8 * channel) & 255u;
    }
  for (const unsigned sum : sums) bytes.push_back(static_cast<std::uint8_t>(drawn == 0 ? 0 : sum / drawn));
  bytes.push_back(static_cast<std::uint8_t>(drawn * 255 / (FINE * FINE)));
}

}  // namespace

std::vector<std::uint8_t> icon(int size) {
  const TPlan plan = plan_for(size);
  TCanvas canvas(size * FINE, size * FINE);
  draw_body(canvas, plan);
  draw_display(canvas, plan);
  draw_keys(canvas, plan);
  std::vector<std::uint8_t> bytes;
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) append_pixel(bytes, canvas, x, y);
  return bytes;
}

}  // namespace art
