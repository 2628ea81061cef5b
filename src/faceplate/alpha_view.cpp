#include "faceplate/alpha_view.h"

#include <cstring>

#include "faceplate/alpha_entry.h"
#include "faceplate/display.h"
#include "faceplate/images.h"
#include "faceplate/key_feedback.h"
#include "faceplate/resources.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr TPoint OVERLAY = {3, 55};
constexpr TRect OVERLAY_RECT = {3, 55, 237, 229};
constexpr TPoint LABEL = {13, 65};
constexpr char CURSOR = '_';

// By TAlphaPrompt.
constexpr const char* labels[] = {"alpha_program_name",      "alpha_program_name",  "alpha_input_prompt",
                                  "alpha_output_text_label", "alpha_output_text",   "alpha_input_prompt",
                                  "alpha_menu_item",         "alpha_menu_title",    "alpha_constant_name",
                                  "alpha_constant_unit",     "alpha_program_error", "alpha_string_text"};
static_assert(sizeof labels / sizeof labels[0] == ALPHA_PROMPT_COUNT);

// Of what a program may be named with.
const char* symbol_page_name() {
  return alpha_entry.kind <= ALPHA_COPY_PROGRAM ? "ALPHA_SYMBOLS_SHORT_GIF" : "ALPHA_SYMBOLS_LONG_GIF";
}

void paint_label(TSurface& surface) {
  if (alpha_entry.kind >= 0 && alpha_entry.kind < ALPHA_PROMPT_COUNT)
    draw_picture(surface, labels[alpha_entry.kind], LABEL.x, LABEL.y);
  else
    platform().show_message("No prompt defined for alpha entry", "Bitmap error");
}

const TBitmap& glyph_of(char character) { return character_glyph(static_cast<unsigned char>(character)); }

// The first character from which on all of them fit together with the cursor.
const char* first_shown() {
  int room = ENTRY_TEXT_WIDTH - glyph_of(CURSOR).width;
  const char* first = alpha_entry.text + std::strlen(alpha_entry.text);
  while (first > alpha_entry.text && room >= glyph_of(first[-1]).width) room -= glyph_of(*--first).width;
  return first;
}

// Every colour of the cursor's block is inverted: black on the display's colour.
void paint_cursor(TSurface& surface, int x) {
  const TColour inverse = WHITE ^ display_colour();
  surface.blit_glyph(glyph_of(CURSOR), x, ENTRY_LINE_Y, inverse, true, WHITE);
}

}  // namespace

void paint_alpha_text(TSurface& surface) {
  clear_line(surface, ENTRY_LINE_Y);
  int x = TEXT_LEFT;
  for (const char* c = first_shown(); *c; ++c) {
    surface.blit_glyph(glyph_of(*c), x, ENTRY_LINE_Y);
    x += glyph_of(*c).width;
  }
  paint_cursor(surface, x);
}

void paint_alpha_shift(TSurface& surface) {
  draw_picture(surface, alpha_entry.shift ? "dot_alpha_shift_button" : "alpha_shift_button",
               ALPHA_SHIFT_RECT.left, ALPHA_SHIFT_RECT.top);
}

void paint_alpha_overlay(TSurface& surface) {
  draw_backdrop(surface, "alpha_entry_gif", OVERLAY.x, OVERLAY.y);
  draw_picture(surface, alpha_entry.symbol_page ? symbol_page_name() : "ALPHA_CHARACTERS_GIF", OVERLAY.x,
               OVERLAY.y);
  paint_alpha_shift(surface);
  paint_label(surface);
}

void redraw_alpha_text() {
  paint_alpha_text(screen_surface());
  platform().present(false);
}

void redraw_alpha_overlay() {
  const TKeyLifted lifted(OVERLAY_RECT);
  paint_alpha_overlay(screen_surface());
  platform().present(false);
}

}  // namespace zephyl
