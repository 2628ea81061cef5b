#include "caps.h"

#include <algorithm>
#include <cmath>

#include "layout.h"

namespace art {

namespace {

constexpr double RADIUS = 3.4;

TColour face_colour(const TCapColours& colours, const TBox& box, int y) {
  if (y == box.top + 1) return colours.light;
  if (y == box.bottom - 1) return colours.shade;
  const double part = static_cast<double>(y - box.top - 2) / std::max(box.height() - 5, 1);
  return mix(colours.top, colours.bottom, std::clamp(part, 0.0, 1.0));
}

void draw_face(TCanvas& canvas, const TBox& box, const TCapColours& colours) {
  const TBox inner = grown(box, -1);
  for (int y = inner.top; y <= inner.bottom; ++y)
    for (int x = inner.left; x <= inner.right; ++x) {
      const bool side = x == inner.left || x == inner.right;
      const TColour face = face_colour(colours, box, y);
      canvas.tint(x, y, side ? mix(face, x == inner.left ? colours.light : colours.shade, 0.35) : face,
                  rounded_cover(inner, RADIUS - 1, x, y));
    }
}

// The sunken edge around a display.
void draw_bezel(TCanvas& canvas, const TBox& display) {
  draw_rounded(canvas, grown(display, 3), 4, PANEL_DEEP);
  draw_rounded(canvas, {display.left - 2, display.top + 1, display.right + 2, display.bottom + 3}, 4,
               PANEL_EDGE);
  draw_rounded(canvas, grown(display, 2), 3, PANEL_DEEP);
  canvas.fill(display, DISPLAY);
}

}  // namespace

double rounded_cover(const TBox& box, double radius, int x, int y) {
  const double dx = std::max({box.left + radius - 0.5 - x, x - (box.right - radius + 0.5), 0.0});
  const double dy = std::max({box.top + radius - 0.5 - y, y - (box.bottom - radius + 0.5), 0.0});
  if (x < box.left || x > box.right || y < box.top || y > box.bottom) return 0;
  return std::clamp(radius - std::hypot(dx, dy) + 0.5, 0.0, 1.0);
}

void draw_rounded(TCanvas& canvas, const TBox& box, double radius, TColour colour) {
  for (int y = box.top; y <= box.bottom; ++y)
    for (int x = box.left; x <= box.right; ++x) canvas.tint(x, y, colour, rounded_cover(box, radius, x, y));
}

void draw_cap(TCanvas& canvas, const TBox& box, const TCapColours& colours, const TSkin& skin) {
  const TBox shadow = {box.left, box.top + 1, box.right, box.bottom + 1};
  for (int y = shadow.top; y <= shadow.bottom; ++y)
    for (int x = shadow.left; x <= shadow.right; ++x)
      canvas.tint(x, y, skin.shadow, skin.shadow_part * rounded_cover(shadow, RADIUS, x, y));
  draw_rounded(canvas, box, RADIUS, colours.outline);
  draw_face(canvas, box, colours);
}

TBox cap_box(const TBox& key, int skin_number) {
  TBox box = key;
  if (skin_number == COLOURFUL && key.width() == LARGE_KEY_WIDTH) --box.right;
  if (skin_number == LIGHT && key.height() == SMALL_KEY_HEIGHT) ++box.bottom;
  return box;
}

TCanvas shell(const TSkin& skin, int tab_top, std::initializer_list<TBox> displays) {
  TCanvas canvas(FRONT_WIDTH, FRONT_HEIGHT);
  const int panel_bottom = tab_top + TAB_LINE_HEIGHT - 1;
  canvas.shade({0, panel_bottom + 1, FRONT_WIDTH - 1, FRONT_HEIGHT - 1}, skin.shell_top, skin.shell_bottom);
  canvas.fill({0, 0, FRONT_WIDTH - 1, panel_bottom}, PANEL);
  canvas.fill({0, 0, FRONT_WIDTH - 1, 0}, PANEL_EDGE);
  canvas.tint_row(panel_bottom + 1, skin.shadow, skin.shadow_part);
  canvas.tint_row(panel_bottom + 2, skin.shadow, skin.shadow_part / 3);
  for (const TBox& display : displays) draw_bezel(canvas, display);
  return canvas;
}

TCanvas cap_picture(int width, int height, const TCapColours& colours) {
  const TBox box = box_at(0, 0, width, height);
  TCanvas canvas(width, height, colours.outline);
  draw_face(canvas, box, colours);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      if (rounded_cover(box, RADIUS, x, y) < 1) canvas.set(x, y, CLEAR);
  return canvas;
}

}  // namespace art
