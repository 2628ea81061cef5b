#include "faceplate/entry_line_view.h"

#include "engine/state.h"
#include "faceplate/display.h"
#include "faceplate/resources.h"
#include "faceplate/token_glyphs.h"
#include "platform/platform.h"
#include "programs/programs.h"

namespace zephyl {

namespace {

constexpr TPoint LEFT_MARK = {9, 13};
constexpr TPoint RIGHT_MARK = {224, 13};
constexpr int TAP_TOP = 6;
constexpr int TAP_BOTTOM = 25;
constexpr const char* CURSOR = "underline";

TScreenMap map;

void add_to_map(int left, int right, int token) {
  if (right >= left && map.count < SCREEN_MAP_LIMIT) map.entries[map.count++] = {left, right, token};
}

void blit_mark(TSurface& surface, const char* name, TPoint at) {
  if (const TBitmap* mark = load_bitmap(name)) surface.blit_glyph(*mark, at.x, at.y);
}

int token_width(int index) {
  TGlyphRun run;
  token_glyphs(entry_line.expression, index, run);
  return run.width;
}

// The farthest token to the left of the cursor from which on everything up to the cursor fits.
int first_token_for_cursor() {
  int room = ENTRY_TEXT_WIDTH - glyph_width(CURSOR);
  int first = entry_line.cursor;
  while (first > 0) {
    room -= token_width(first - 1);
    if (room < 0) break;
    --first;
  }
  return first;
}

// The row being painted, glyph by glyph.
struct TPen {
  TSurface& surface;
  int used = 0;  // pixels behind TEXT_LEFT

  bool draw(const TBitmap& glyph) {
    if (used + glyph.width > ENTRY_TEXT_WIDTH) return false;
    surface.blit_glyph(glyph, TEXT_LEFT + used, ENTRY_LINE_Y);
    used += glyph.width;
    return true;
  }

  // False if not all of it fitted.
  bool draw(const TGlyphRun& run) {
    for (int i = 0; i < run.count; ++i)
      if (!draw(*run.glyphs[i])) return false;
    return true;
  }

  // The cursor takes no room: the token that it stands in front of is drawn over it.
  void draw_cursor() const {
    if (const TBitmap* cursor = load_bitmap(CURSOR))
      surface.blit_glyph(*cursor, TEXT_LEFT + used, ENTRY_LINE_Y);
  }
};

bool paint_token(TPen& pen, int index) {
  TGlyphRun run;
  token_glyphs(entry_line.expression, index, run);
  const int left = TEXT_LEFT + pen.used;
  const bool fitted = pen.draw(run);
  add_to_map(left, TEXT_LEFT + pen.used - 1, index);
  return fitted;
}

void paint_tokens(TSurface& surface, int first, bool with_cursor) {
  TPen pen{surface};
  const int count = entry_line.expression.count;
  for (int index = first; index < count; ++index) {
    if (with_cursor && index == entry_line.cursor) pen.draw_cursor();
    if (!paint_token(pen, index)) return blit_mark(surface, "right_arrow", RIGHT_MARK);
  }
  if (with_cursor && entry_line.cursor >= count) pen.draw_cursor();
}

bool has_digit_keys_or_table() {
  return state.calcMode == BASE_MODE || state.calcMode == COMP_MODE || state.calcMode == STATS_MODE ||
         state.calcMode == MATRIX_MODE || state.calcMode == LIST_MODE;
}

int token_at(int x) {
  for (int i = 0; i < map.count; ++i)
    if (x >= map.entries[i].left && x <= map.entries[i].right) return map.entries[i].token;
  return -1;
}

}  // namespace

const TScreenMap& screen_map() { return map; }

bool shows_entry_line() {
  return !state.alpha_active && (has_digit_keys_or_table() || state.calcMode == PROGRAM_EDIT_MODE);
}

namespace {

// The words that a running program shows in the line's place.
void paint_words(TSurface& surface, const char* words) {
  TPen pen{surface};
  for (; *words; ++words)
    if (!pen.draw(character_glyph(static_cast<unsigned char>(*words)))) return;
}

}  // namespace

void paint_entry_line(TSurface& surface, bool with_cursor) {
  clear_line(surface, ENTRY_LINE_Y);
  map.count = 0;
  if (program_prompt_line()[0]) return paint_words(surface, program_prompt_line());
  const int first = with_cursor ? first_token_for_cursor() : 0;
  if (first > 0) blit_mark(surface, "left_arrow", LEFT_MARK);
  paint_tokens(surface, first, with_cursor);
}

void draw_expression(bool with_cursor) {
  entry_line.cursor_shown = with_cursor;
  if (!shows_entry_line()) return;
  paint_entry_line(screen_surface(), with_cursor);
  platform().present(false);
}

void cursor_to_tap(int x, int y) {
  if (!has_digit_keys_or_table() || y < TAP_TOP || y > TAP_BOTTOM) return;
  const int token = token_at(x);
  if (token >= 0) cursor_to(token);
}

}  // namespace zephyl
