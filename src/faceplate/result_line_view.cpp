#include "faceplate/result_line_view.h"

#include <algorithm>
#include <cstring>

#include "engine/state.h"
#include "faceplate/display.h"
#include "faceplate/gif.h"
#include "faceplate/key_feedback.h"
#include "faceplate/resources.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr TPoint LEFT_BUTTON = {9, 27};
constexpr TPoint RIGHT_BUTTON = {223, 27};
constexpr TRect LINE = {LINE_LEFT, RESULT_LINE_Y, LINE_RIGHT, RESULT_LINE_Y + LINE_HEIGHT - 1};

bool more_to_the_right = false;

bool shows_prompt() { return state.program_running && state.at_prompt && state.result_text[0] == 0; }

const char* shown_text() { return shows_prompt() ? state.prompt_text : state.result_text; }

bool shows_result_line() {
  return state.calcMode >= BASE_MODE && state.calcMode <= LIST_MODE && state.calcMode != PLOT_MODE &&
         state.calcMode != PERIODIC_MODE && state.calcMode != PROGRAM_EDIT_MODE;
}

void draw_button(TSurface& surface, const char* name, TPoint at) {
  draw_gif_resource(surface, name, at.x, at.y, true, true);
}

// False if the text doesn't end within the line.
bool paint_text(TSurface& surface, const char* text) {
  int used = 0;
  for (; *text; ++text) {
    const TBitmap* glyph = load_bitmap(glyph_name_of_result_char(static_cast<unsigned char>(*text)));
    if (!glyph) continue;
    if (used + glyph->width > RESULT_TEXT_WIDTH) return false;
    surface.blit_glyph(*glyph, TEXT_LEFT + used, RESULT_LINE_Y);
    used += glyph->width;
  }
  return true;
}

}  // namespace

void paint_result_line(TSurface& surface) {
  clear_line(surface, RESULT_LINE_Y);
  const char* text = shown_text();
  const int length = static_cast<int>(std::strlen(text));
  state.result_offset = std::clamp(state.result_offset, 0, length);
  more_to_the_right = !paint_text(surface, text + state.result_offset);
  if (more_to_the_right) draw_button(surface, "LOWER_RIGHT_BUTTON", RIGHT_BUTTON);
  if (state.result_offset > 0) draw_button(surface, "LOWER_LEFT_BUTTON", LEFT_BUTTON);
}

void draw_result(bool home) {
  if (home) state.result_offset = 0;
  if (!shows_result_line()) return;
  const TKeyLifted lifted(LINE);
  paint_result_line(screen_surface());
  platform().present(false);
}

void scroll_result_left() {
  if (state.result_offset == 0) return;
  --state.result_offset;
  draw_result(false);
}

void scroll_result_right() {
  if (!more_to_the_right) return;
  ++state.result_offset;
  draw_result(false);
}

}  // namespace zephyl
