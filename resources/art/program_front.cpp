// The front of the program editor.

#include "caps.h"
#include "fronts.h"
#include "layout.h"
#include "legends.h"
#include "signs.h"

namespace art {

namespace {

constexpr TBox ENTRY_DISPLAY = {7, 6, 232, 25};
constexpr TBox LISTING_DISPLAY = {7, 36, 232, 185};
constexpr int KEY_COUNT = 18;

// clang-format off
const TKeyLegend legends[] = {
    {2, "▲", "10", "", true}, {3, "▼", "10", "", true}, {4, "DEL"}, {5, "Desc"},
    {6, "if", "else"}, {7, "loop", "func("}, {8, "while", "error"}, {9, "end", "break"}, {10, "in", "text"}, {11, "out", "fout"},
    {12, "label", "rtn sub"}, {13, "goto", "gosub"}, {14, "call", "rtn call"}, {15, "in f()", "f()"}, {16, "expr", "edit"},
    {17, "stop", "menu"},
};
// clang-format on

TCanvas background(const TSkin& skin, int number) {
  TCanvas canvas = shell(skin, LOW_TAB_LINE_TOP, {ENTRY_DISPLAY, LISTING_DISPLAY});
  for (int key = 0; key < KEY_COUNT; ++key)
    draw_cap(canvas, cap_box(program_key(key), number), skin.plain, skin);
  return canvas;
}

TCanvas front(const TSkin& skin) {
  TCanvas canvas(FRONT_WIDTH, FRONT_HEIGHT);
  print_with_sign(canvas, program_key(0), run_triangle(), RUN_GREEN, "RUN", skin.plain.print);
  for (const TKeyLegend& legend : legends)
    draw_legend(canvas, program_key(legend.key), legend, skin, skin.plain.print);
  return canvas;
}

}  // namespace

void add_program_front(TProduct& product) {
  for (int number = 0; number < SKIN_COUNT; ++number) {
    product.add_skinned("PROGRAM_BACKGROUND_GIF", number, background(skin(number), number));
    product.add_skinned("PROG_CALCULATOR_GIF", number, front(skin(number)));
  }
}

}  // namespace art
