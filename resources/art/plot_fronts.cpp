// The fronts of the plot screen: one background, and what differs between 3D and other plots in the fronts
// laid over it.

#include "caps.h"
#include "fronts.h"
#include "layout.h"
#include "legends.h"
#include "signs.h"
#include "typefaces.h"

namespace art {

namespace {

const TMask magnifier{"..####....", ".#....#...", "#......#..", "#......#..", "#......#..", "#......#..",
                      ".#....#...", "..#####...", "......###.", ".......###", "........##"};
const TMask home_mark{".......#.......", ".......#.......", "....#######....", "...#...#...#...",
                      "..#....#....#..", "..#....#....#..", "###############", "..#....#....#..",
                      "..#....#....#..", "...#...#...#...", "....#######....", ".......#.......",
                      ".......#......."};
const TMask up_mark{"....#....", "...###...", "..#####..", ".#######.", "#########"};

// The signs of the plot cursors, beside the lamps of their keys.
const TMask trace_mark{"....#....", "....#....", "....#....", ".........", "###...###",
                       ".........", "....#....", "....#....", "....#...."};
const TMask box_mark{"#.#.#.#.#", ".........", "#.......#", ".........", "#.......#",
                     ".........", "#.......#", ".........", "#.#.#.#.#"};
const TMask pan_mark{"....#....", "...###...", "....#....", ".#..#..#.", "#########",
                     ".#..#..#.", "....#....", "...###...", "....#...."};
const TMask rotate_mark{"..####..#", ".#....###", "#.....###", "#........", "#........",
                        "#.......#", "#.......#", ".#.....#.", "..#####.."};
const TMask calculate_mark{"#########", "#.......#", "#.#####.#", "#.......#", "#.#.#.#.#",
                           "#.......#", "#.#.#.#.#", "#.......#", "#########"};

constexpr int CURSOR_KEYS = 20;
// Columns on the left of a cursor key that its lamp takes.
constexpr int LAMP_WIDTH = 5;

void draw_pad(TCanvas& canvas, const TSkin& skin) {
  const TBox pad = {154, 210, 234, 288};
  for (int y = pad.top; y <= pad.bottom; ++y)
    for (int x = pad.left; x <= pad.right; ++x)
      canvas.tint(x, y, skin.shadow, 0.4 * skin.shadow_part * rounded_cover(pad, 14, x, y));
}

TCanvas background(const TSkin& skin) {
  TCanvas canvas = shell(skin, LOW_TAB_LINE_TOP, {TALL_DISPLAY_BOX});
  canvas.fill(TALL_DISPLAY_BOX, 0xFFFFFF);
  draw_pad(canvas, skin);
  for (int key : {1, 2}) draw_cap(canvas, plot_key(key, false), skin.plain, skin);
  for (int key = 7; key <= 11; ++key)
    draw_cap(canvas, plot_key(key, false), key == 7 ? skin.mode : skin.pale, skin);
  for (int key = CURSOR_KEYS; key < CURSOR_KEYS + 4; ++key)
    draw_cap(canvas, plot_key(key, false), skin.plain, skin);
  return canvas;
}

void print(TCanvas& canvas, const TBox& box, const TMask& mask, TColour colour) {
  canvas.stamp_centred(mask, box, colour);
}

void print_pad(TCanvas& canvas, const TSkin& skin) {
  const TMask left = left_triangle();
  print(canvas, plot_key(7, false), home_mark, skin.mode.print);
  print(canvas, plot_key(8, false), left, skin.pale.print);
  print(canvas, plot_key(9, false), left.flipped(), skin.pale.print);
  print(canvas, plot_key(10, false), up_mark, skin.pale.print);
  print(canvas, plot_key(11, false), up_mark.turned(), skin.pale.print);
}

void print_cursor_key(TCanvas& canvas, const TSkin& skin, int number, const TMask& mark) {
  TBox box = plot_key(CURSOR_KEYS + number, false);
  box.left += LAMP_WIDTH;
  print(canvas, box, mark, skin.plain.print);
}

void print_zoom(TCanvas& canvas, const TBox& box, bool in, TColour colour) {
  const int x = box.left + (box.width() - magnifier.width()) / 2,
            y = box.top + (box.height() - magnifier.height()) / 2;
  canvas.stamp(magnifier, x, y, colour);
  canvas.fill({x + 2, y + 3, x + 5, y + 4}, colour);
  if (in) canvas.fill({x + 3, y + 2, x + 4, y + 5}, colour);
}

// The rows of a lamp that the program draws, 9 high, stand in the middle of their key.
void print_lock(TCanvas& canvas, const TBox& box, const char* word, TColour colour) {
  const TMask mask = typefaces().legend.label(word);
  canvas.stamp_centred(mask, {box.left + 13, box.top, box.right - 1, box.bottom}, colour);
}

// With caps of its own, whose soft edges lie on the background.
TCanvas front(const TSkin& skin, bool is_3d) {
  const TCanvas under = background(skin);
  TCanvas canvas = under;
  const TColour colour = skin.plain.print;
  print(canvas, plot_key(1, is_3d), cap_label("Setup", plot_key(1, is_3d).width()), colour);
  print(canvas, plot_key(2, is_3d), cap_label("Functions", plot_key(2, is_3d).width()), colour);
  for (int key : {3, 4, 5, 6}) draw_cap(canvas, plot_key(key, is_3d), skin.plain, skin);
  print_zoom(canvas, plot_key(3, is_3d), true, colour);
  print_zoom(canvas, plot_key(4, is_3d), false, colour);
  print_lock(canvas, plot_key(5, is_3d), "x lock", colour);
  print_lock(canvas, plot_key(6, is_3d), "y lock", colour);
  if (is_3d) {
    for (int key : {18, 19}) draw_cap(canvas, plot_key(key, true), skin.plain, skin);
    print(canvas, plot_key(18, true), typefaces().legend.label("z×2"), colour);
    print(canvas, plot_key(19, true), typefaces().legend.label("z÷2"), colour);
  }
  print_pad(canvas, skin);
  print_cursor_key(canvas, skin, 0, trace_mark);
  print_cursor_key(canvas, skin, 1, box_mark);
  print_cursor_key(canvas, skin, 2, pan_mark);
  if (is_3d)
    print_cursor_key(canvas, skin, 3, rotate_mark);
  else
    print(canvas, plot_key(CURSOR_KEYS + 3, false), calculate_mark, colour);
  return difference(canvas, under);
}

}  // namespace

void add_plot_fronts(TProduct& product) {
  for (int number = 0; number < SKIN_COUNT; ++number) {
    product.add_skinned("PLOT_BACKGROUND_GIF", number, background(skin(number)));
    product.add_skinned("PLOT_CALCULATOR_FUNCTION_GIF", number, front(skin(number), false));
    product.add_skinned("PLOT_CALCULATOR_3D_GIF", number, front(skin(number), true));
  }
}

}  // namespace art
