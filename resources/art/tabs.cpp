// The line of tabs under the display, the marks at the ends of the result line, and the lamps of the plot
// screen. They have no skins: the panel on which they lie is the same in all of them.

#include "caps.h"
#include "fronts.h"
#include "layout.h"
#include "typefaces.h"

namespace art {

namespace {

constexpr TColour TAB = 0x3D464E;
constexpr TColour TAB_EDGE = 0x566069;
constexpr TColour TAB_TEXT = 0xC3CCD3;
constexpr TColour LIT = 0xD2CB9E;
constexpr TColour LIT_EDGE = 0xEFEACB;
constexpr TColour LIT_TEXT = 0x1B2024;

// A tab with its upper corners round, on the panel.
void draw_tab(TCanvas& canvas, int left, const char* word, bool lit) {
  // Its first row is bare, so that nothing of it looks out above the text entry.
  const TBox box = box_at(left, 1, TAB_WIDTH, TAB_LINE_HEIGHT - 2);
  draw_rounded(canvas, box, 3, lit ? LIT_EDGE : TAB_EDGE);
  draw_rounded(canvas, {box.left, box.top + 1, box.right, box.bottom}, 3, lit ? LIT : TAB);
  canvas.stamp_centred(typefaces().legend.label(word), {box.left, box.top, box.right, box.bottom},
                       lit ? LIT_TEXT : TAB_TEXT);
}

TCanvas tab_picture(const char* word, bool lit) {
  TCanvas canvas(TAB_WIDTH, TAB_LINE_HEIGHT, PANEL);
  draw_tab(canvas, 0, word, lit);
  return canvas;
}

TCanvas tab_line() {
  static constexpr const char* words[] = {"COMP", "PROG", "PLOT", "STATS", "MENU", "SETUP"};
  TCanvas canvas(FRONT_WIDTH, TAB_LINE_HEIGHT, PANEL);
  for (int tab = 0; tab < 6; ++tab) draw_tab(canvas, tab_left(tab), words[tab], false);
  return canvas;
}

struct TTab {
  const char* name;
  const char* word;
  bool lit;
};

constexpr TTab tabs[] = {
    {"ENUN_COMP", "COMP", true},         {"ENUN_PROG", "PROG", true},
    {"ENUN_PLOT", "PLOT", true},         {"ENUN_BASE", "BASE", true},
    {"ENUN_STATS", "STATS", true},       {"ENUN_MATRIX", "MATRIX", true},
    {"ENUN_LIST", "LIST", true},         {"ENUN_BASE_DARK", "BASE", false},
    {"ENUN_STATS_DARK", "STATS", false}, {"ENUN_MATRIX_DARK", "MATRIX", false},
    {"ENUN_LIST_DARK", "LIST", false},
};

// The end of the result line, with more text behind it.
TCanvas scroll_button(bool to_left) {
  static const TMask mark{"...#", "..##", ".###", "####", ".###", "..##", "...#"};
  TCanvas canvas = cap_picture(9, 16, {0x566069, 0x353D44, 0x7B868F, 0x262C31, 0x1B2024, 0});
  canvas.stamp_centred(to_left ? mark : mark.flipped(), {to_left ? 0 : 1, 0, to_left ? 7 : 8, 15}, 0xF4F0D8);
  return canvas;
}

TCanvas led(TColour colour, TColour ring) {
  TCanvas canvas(9, 9, ring);
  canvas.disc(4, 4, 3.3, colour);
  canvas.disc(3, 3, 1.0, mix(colour, 0xFFFFFF, 0.75));
  for (int y = 0; y < 9; ++y)
    for (int x = 0; x < 9; ++x)
      if (rounded_cover({0, 0, 8, 8}, 4.5, x, y) < 0.6) canvas.set(x, y, CLEAR);
  return canvas;
}

}  // namespace

void add_tabs(TProduct& product) {
  product.add_image("ENUM_LINE", tab_line());
  for (const TTab& tab : tabs) product.add_image(tab.name, tab_picture(tab.word, tab.lit));
  product.add_image("LOWER_LEFT_BUTTON", scroll_button(true));
  product.add_image("LOWER_RIGHT_BUTTON", scroll_button(false));
  product.add_image("GREEN_LED_GIF", led(0x35D048, 0x0E4A18));
  product.add_image("RED_LED_GIF", led(0xF04030, 0x5A0F08));
}

}  // namespace art
