#include "faceplate/key_feedback.h"

#include "faceplate/display.h"
#include "platform/events.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int KEEP_MARGIN = 10;

struct TPressedKey {
  bool pressed = false;
  TRect rect;
  TSurface kept{SCREEN_WIDTH + KEEP_MARGIN, SCREEN_HEIGHT + KEEP_MARGIN};  // the key as it was, from 0, 0
};

TPressedKey& pressed_key() {
  static TPressedKey key;
  return key;
}

// Of keys more than 20 pixels high one row more stays in place.
int inner_height(const TRect& rect) {
  const int span = rect.bottom - rect.top;
  return rect.height() > 20 ? span - 4 : span - 3;
}

bool overlap(const TRect& a, const TRect& b) {
  return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

}  // namespace

void press_key_feedback(const TRect& rect) {
  const int width = rect.right - rect.left - 4;
  const int height = inner_height(rect);
  if (width <= 0 || height <= 0) return;
  release_key_feedback();
  TPressedKey& key = pressed_key();
  TSurface& surface = screen_surface();
  key.kept.blit(0, 0, rect.width(), rect.height(), surface, rect.left, rect.top);
  surface.blit(rect.left + 2, rect.top + 2, width, height, key.kept, 3, 3);
  key.rect = rect;
  key.pressed = true;
  platform().present(false);
}

void release_key_feedback() {
  TPressedKey& key = pressed_key();
  if (!key.pressed) return;
  key.pressed = false;
  screen_surface().blit(key.rect.left, key.rect.top, key.rect.width(), key.rect.height(), key.kept, 0, 0);
  platform().present(false);
}

TKeyLifted::TKeyLifted(const TRect& area)
    : lifted_(pressed_key().pressed && overlap(pressed_key().rect, area)), key_(pressed_key().rect) {
  if (lifted_) release_key_feedback();
}

TKeyLifted::~TKeyLifted() {
  if (lifted_) press_key_feedback(key_);
}

void forget_key_feedback() { pressed_key().pressed = false; }

}  // namespace zephyl
