#include "faceplate/face.h"

#include "engine/state.h"

namespace zephyl {

face::face() { paint(); }

void face::press_key_down(int key) {
  KeyRect rect;
  ASSERT_TRUE(key_rect(key, rect)) << "no key " << key;
  on_pen_down((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

void face::tap_key(int key) {
  press_key_down(key);
  on_pen_up(0, 0);
  if (platform_.take_paint_request()) on_paint();
}

void face::tap_keys(const std::vector<int>& keys) {
  for (const int key : keys) tap_key(key);
}

void face::type(const std::string& characters) {
  for (const char c : characters) on_char(static_cast<unsigned char>(c));
}

void face::arrow(TArrow arrow) { on_arrow(arrow); }

void face::paint() { on_paint(); }

std::vector<TColour> face::picture() { return pixels({0, 0, SCREEN_WIDTH - 1, SCREEN_HEIGHT - 1}); }

std::vector<TColour> face::pixels(const TRect& rect) {
  std::vector<TColour> colours;
  for (int y = rect.top; y <= rect.bottom; ++y)
    for (int x = rect.left; x <= rect.right; ++x) colours.push_back(screen().pixel(x, y));
  return colours;
}

std::string face::shifts() const {
  std::string text;
  if (state.blue_shift) text += "blue ";
  if (state.orange_shift) text += "orange ";
  if (state.hyp_shift) text += "hyp ";
  return text;
}

TRect rect_of(const TKeyTable& table, int key) {
  const TRect rect = table.rows[key].rect();
  return {rect.left + table.dx, rect.top + table.dy, rect.right + table.dx, rect.bottom + table.dy};
}

}  // namespace zephyl
