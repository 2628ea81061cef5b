// The overlay of the text entry: a panel with caps, the characters laid over it, its shift key and its
// prompts. It has no skins; it looks like the panel around the display.

#include <string>

#include "caps.h"
#include "fronts.h"
#include "layout.h"
#include "legends.h"
#include "typefaces.h"

namespace art {

namespace {

constexpr int OVERLAY_WIDTH = 235;
constexpr int OVERLAY_HEIGHT = 175;
constexpr int KEY_COUNT = 42;
constexpr TColour PRINT = 0x14181C;
constexpr TColour UNUSED = 0x2C343A;
constexpr TColour PROMPT = 0xE6E0BC;
constexpr TCapColours CAP = {0xF2F3F4, 0xCDD2D6, 0xFFFFFF, 0xA7AEB4, 0x0E1113, PRINT};
constexpr TCapColours SERVICE_CAP = {0x9AA6B0, 0x76838E, 0xBAC4CC, 0x5C6872, 0x0E1113, PRINT};
constexpr TCapColours ENTER_CAP = {0xA6DDAA, 0x6DB77A, 0xCDF0CD, 0x4C9058, 0x0E1113, 0x0A2A14};
constexpr TCapColours CANCEL_CAP = {0xF3B4A4, 0xD98A76, 0xFBD4C9, 0xB0654F, 0x0E1113, 0x45120A};
constexpr TCapColours SHIFT_CAP = {0x5C97D6, 0x2F68A8, 0x8FBBEA, 0x204D80, 0x0E1113, 0xFFFFFF};

enum TServiceKey { KEY_SHIFT = 36, KEY_BACK, KEY_SPACE, KEY_SYMBOLS, KEY_ENTER, KEY_CANCEL };

const TCapColours& cap_of(int key) {
  if (key == KEY_ENTER) return ENTER_CAP;
  if (key == KEY_CANCEL) return CANCEL_CAP;
  return key < KEY_SHIFT || key == KEY_SPACE ? CAP : SERVICE_CAP;
}

TSkin panel_skin() {
  TSkin out = skin(DARK);
  out.shadow = 0x000000;
  return out;
}

const TMask backspace{"...########", "..#.......#", ".#..#...#.#", "#....#.#..#", "#.....#...#",
                      "#....#.#..#", ".#..#...#.#", "..#.......#", "...########"};

TCanvas overlay() {
  const TBox all = {0, 0, OVERLAY_WIDTH - 1, OVERLAY_HEIGHT - 1};
  TCanvas canvas(OVERLAY_WIDTH, OVERLAY_HEIGHT, PANEL_DEEP);
  canvas.frame(all, 0x5E6972);
  canvas.fill(grown(all, -1), PANEL);
  canvas.fill({1, 1, OVERLAY_WIDTH - 2, 1}, PANEL_EDGE);
  for (int key = 0; key < KEY_COUNT; ++key)
    if (key != KEY_SHIFT) draw_cap(canvas, alpha_key(key), cap_of(key), panel_skin());
  canvas.stamp_centred(backspace, alpha_key(KEY_BACK), PRINT);
  canvas.stamp_centred(typefaces().narrow.label("Space"), alpha_key(KEY_SPACE), PRINT);
  canvas.stamp_centred(typefaces().narrow.label("Enter"), alpha_key(KEY_ENTER), ENTER_CAP.print);
  canvas.stamp_centred(typefaces().narrow.label("Cancel"), alpha_key(KEY_CANCEL), CANCEL_CAP.print);
  return canvas;
}

// Set by the line, not by the ink: all characters of a row stand on one line.
void draw_character(TCanvas& canvas, const TBox& box, char character) {
  const TTypeface& face = typefaces().round;
  const TMask mask = face.letter(static_cast<unsigned char>(character));
  canvas.stamp(mask, box.left + (box.width() - mask.width()) / 2, box.top + 12 - face.baseline(), PRINT);
}

// The place of a key that means nothing on a page.
void draw_unused_key(TCanvas& canvas, const TBox& box) {
  canvas.fill(grown(box, 1), PANEL);
  draw_rounded(canvas, box, 3, UNUSED);
}

// A character a key from the first on; a key without one, or with a blank, is unused. page: the word on the
// key that turns the page.
TCanvas characters(const std::string& text, const char* page) {
  TCanvas canvas(OVERLAY_WIDTH, OVERLAY_HEIGHT);
  for (int key = 0; key < KEY_SHIFT; ++key) {
    const char character = key < static_cast<int>(text.size()) ? text[static_cast<std::size_t>(key)] : ' ';
    if (character == ' ')
      draw_unused_key(canvas, alpha_key(key));
    else
      draw_character(canvas, alpha_key(key), character);
  }
  canvas.stamp_centred(typefaces().narrow.label(page), alpha_key(KEY_SYMBOLS), PRINT);
  return canvas;
}

TCanvas shift_key(bool on) {
  const TCapColours cap = on ? glowing(SHIFT_CAP) : SHIFT_CAP;
  TCanvas canvas(SMALL_KEY_WIDTH, SMALL_KEY_HEIGHT, PANEL);
  draw_cap(canvas, {0, 0, SMALL_KEY_WIDTH - 1, SMALL_KEY_HEIGHT - 1}, cap, panel_skin());
  print_shift(canvas, "SHIFT", on, cap.print);
  return canvas;
}

struct TPrompt {
  const char* name;
  const char* text;
};

constexpr TPrompt prompts[] = {
    {"ALPHA_CONSTANT_NAME", "Constant Name:"},    {"ALPHA_CONSTANT_UNIT", "Constant Unit:"},
    {"ALPHA_INPUT_PROMPT", "Input Prompt:"},      {"ALPHA_MENU_ITEM", "Menu Item:"},
    {"ALPHA_MENU_TITLE", "Menu Title:"},          {"ALPHA_OUTPUT_TEXT", "Output Text:"},
    {"ALPHA_OUTPUT_TEXT_LABEL", "Output Label:"}, {"ALPHA_PROGRAM_ERROR", "Program Error:"},
    {"ALPHA_PROGRAM_NAME", "Program Name:"},      {"ALPHA_STRING_TEXT", "String Text:"},
};

// 10 rows, 13 where letters reach below the line.
TCanvas prompt(const char* text) {
  const TTypeface& face = typefaces().narrow;
  const TMask mask = face.text(text);
  const bool deep = mask.ink_bottom() > face.baseline() + 1;
  TCanvas canvas(mask.width(), deep ? 13 : 10, PANEL);
  canvas.stamp(mask, 0, 9 - face.baseline(), PROMPT);
  return canvas;
}

}  // namespace

void add_alpha_entry(TProduct& product) {
  product.add_image("ALPHA_ENTRY_GIF", overlay());
  product.add_image("ALPHA_CHARACTERS_GIF", characters("1234567890qwertyuiopasdfghjklzxcvbnm", "#+="));
  product.add_image("ALPHA_SYMBOLS_LONG_GIF", characters("()[]{}<>*=:;,.'\"+-!#/\\_?$&~^%@|", "abc"));
  // Without the characters that a file name must not have.
  product.add_image("ALPHA_SYMBOLS_SHORT_GIF", characters("()[]{}<> = ;, '\"+-!#  _ $&~^%@", "abc"));
  product.add_image("ALPHA_SHIFT_BUTTON", shift_key(false));
  product.add_image("DOT_ALPHA_SHIFT_BUTTON", shift_key(true));
  for (const TPrompt& row : prompts) product.add_image(row.name, prompt(row.text));
}

}  // namespace art
