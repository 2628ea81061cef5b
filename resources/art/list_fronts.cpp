// The fronts of the list and matrix screens: a sheet of paper with the table, its scroll keys, the letters of
// the variables, and the keys below.

#include <string>

#include "caps.h"
#include "fronts.h"
#include "layout.h"
#include "legends.h"
#include "signs.h"
#include "typefaces.h"

namespace art {

namespace {

// The sheet of the table. Its text is black in all skins, so the dark one only dims it.
struct TPaper {
  TColour sheet;
  TColour band;  // every other row
  TColour head;  // row numbers
  TColour line;
};
constexpr TPaper bright_paper = {0xFBF9F1, 0xEFEBDC, 0xE2DCC6, 0xCFC8B0};
constexpr TPaper dim_paper = {0xC8C9C6, 0xBBBDBA, 0xABAEAB, 0x979B99};

constexpr TBox SHEET = {1, 69, 226, 239};

constexpr int ROW_COUNT = 8;
constexpr int ROW_HEIGHT = 15;
constexpr int TABLE_TOP = 103;
constexpr int TABLE_BOTTOM = TABLE_TOP + ROW_COUNT * ROW_HEIGHT - 1;
constexpr int LIST_LEFT = 32;
constexpr int MATRIX_LEFT = 22;
constexpr int MATRIX_COLUMN = 41;

constexpr int LETTER_TOP = 252;
constexpr int LETTER_HEIGHT = 14;
constexpr int LETTER_WIDTH = 20;
constexpr int ANSWER_WIDTH = 40;

constexpr TColour LETTER_TEXT = 0xC3CCD3;
constexpr TColour LETTER_LIT = 0xD2CB9E;
constexpr TColour LETTER_LIT_TEXT = 0x1B2024;
constexpr TColour LETTER_BOX = 0x3D464E;

// A letter of the row of variables, dark on a lit field or light on the panel.
void draw_letter(TCanvas& canvas, int left, int top, int width, const std::string& text, bool lit) {
  draw_rounded(canvas, {left + 1, top + 1, left + width - 2, top + LETTER_HEIGHT - 2}, 3,
               lit ? LETTER_LIT : LETTER_BOX);
  canvas.stamp_centred(typefaces().legend.label(text), box_at(left, top, width, LETTER_HEIGHT),
                       lit ? LETTER_LIT_TEXT : LETTER_TEXT);
}

std::string letter(int number) { return std::string(1, static_cast<char>('A' + number)); }

void draw_letters(TCanvas& canvas, const char* answer) {
  canvas.fill({0, LETTER_TOP, FRONT_WIDTH - 1, LETTER_TOP + LETTER_HEIGHT - 1}, PANEL);
  draw_letter(canvas, 0, LETTER_TOP, ANSWER_WIDTH, answer, false);
  for (int i = 0; i < 10; ++i)
    draw_letter(canvas, ANSWER_WIDTH + LETTER_WIDTH * i, LETTER_TOP, LETTER_WIDTH, letter(i), false);
}

void draw_sheet(TCanvas& canvas, const TPaper& paper, int first_column, int column_width) {
  draw_rounded(canvas, grown(SHEET, 1), 3, PANEL_DEEP);
  draw_rounded(canvas, SHEET, 3, paper.sheet);
  canvas.fill({SHEET.left, TABLE_TOP - 1, SHEET.right, TABLE_TOP - 1}, paper.line);
  for (int row = 0; row < ROW_COUNT; row += 2)
    canvas.fill(
        {SHEET.left, TABLE_TOP + ROW_HEIGHT * row, SHEET.right, TABLE_TOP + ROW_HEIGHT * (row + 1) - 1},
        paper.band);
  canvas.fill({SHEET.left, TABLE_TOP, first_column - 2, TABLE_BOTTOM}, paper.head);
  canvas.fill({SHEET.left, TABLE_BOTTOM + 1, SHEET.right, TABLE_BOTTOM + 1}, paper.line);
  for (int x = first_column; x < SHEET.right; x += column_width)
    canvas.fill({x - 1, TABLE_TOP - 1, x - 1, TABLE_BOTTOM}, paper.line);
}

const TMask small_up{"..#..", ".###.", "#####"};
const TMask small_left{"..#", ".##", "###", ".##", "..#"};

// One or two marks, one behind the other.
TMask arrow_mark(const TMask& mark, bool upright, bool twice) {
  if (!twice) return mark;
  TMask out(upright ? mark.width() : 2 * mark.width() + 1, upright ? 2 * mark.height() + 1 : mark.height());
  out.stamp(mark, 0, 0);
  out.stamp(mark, upright ? 0 : mark.width() + 1, upright ? mark.height() + 1 : 0);
  return out;
}

struct TScrollKey {
  int key;
  bool upright;
  bool twice;    // by a page
  bool forward;  // down or to the right
};

constexpr TScrollKey upright_keys[] = {
    {13, true, true, false}, {14, true, true, true}, {17, true, false, false}, {18, true, false, true}};
constexpr TScrollKey level_keys[] = {
    {11, false, true, false}, {12, false, true, true}, {15, false, false, false}, {16, false, false, true}};

void draw_scroll_key(TCanvas& canvas, const TScrollKey& key, const TSkin& skin) {
  const TMask mark = arrow_mark(key.upright ? small_up : small_left, key.upright, key.twice);
  const TBox box = list_key(key.key);
  draw_cap(canvas, box, skin.plain, skin);
  canvas.stamp_centred(!key.forward  ? mark
                       : key.upright ? mark.turned()
                                     : mark.flipped(),
                       box, skin.plain.print);
}

const TCapColours& bottom_cap(const TSkin& skin, int key) {
  if (key == 7) return skin.enter;
  return key == 10 ? skin.mode : skin.digit;
}

TCanvas background(int number, bool is_list) {
  const TSkin& skin = art::skin(number);
  const TPaper& paper = number == DARK ? dim_paper : bright_paper;
  TCanvas canvas = shell(skin, TAB_LINE_TOP, {DISPLAY_BOX});
  if (is_list)
    draw_sheet(canvas, paper, LIST_LEFT, FRONT_WIDTH);
  else
    draw_sheet(canvas, paper, MATRIX_LEFT, MATRIX_COLUMN);
  draw_letters(canvas, is_list ? "{Ans}" : "[Ans]");
  for (int key = 6; key <= 10; ++key) draw_cap(canvas, list_key(key), bottom_cap(skin, key), skin);
  return canvas;
}

struct TLabel {
  int key;
  const char* text;
};
constexpr TLabel labels[] = {{8, "Size"}, {9, "Var"}, {6, "Func"}, {10, "Enter"}};

TCanvas front(int number, bool is_list) {
  const TSkin& skin = art::skin(number);
  const TCanvas under = background(number, is_list);
  TCanvas canvas = under;
  for (const TScrollKey& key : upright_keys) draw_scroll_key(canvas, key, skin);
  if (!is_list)
    for (const TScrollKey& key : level_keys) draw_scroll_key(canvas, key, skin);
  for (const TLabel& label : labels)
    canvas.stamp_centred(cap_label(label.text, LARGE_KEY_WIDTH), list_key(label.key),
                         bottom_cap(skin, label.key).print);
  canvas.stamp_centred(typefaces().digit.label("="), list_key(7), skin.enter.print);
  return difference(canvas, under);
}

TCanvas letter_picture(int width, const std::string& text) {
  TCanvas canvas(width, LETTER_HEIGHT, PANEL);
  draw_letter(canvas, 0, 0, width, text, true);
  return canvas;
}

}  // namespace

void add_list_fronts(TProduct& product) {
  for (int number = 0; number < SKIN_COUNT; ++number) {
    product.add_skinned("LIST_BACKGROUND_GIF", number, background(number, true));
    product.add_skinned("LIST_GIF", number, front(number, true));
    product.add_skinned("MATRIX_BACKGROUND_GIF", number, background(number, false));
    product.add_skinned("MATRIX_GIF", number, front(number, false));
  }
  product.add_image("LIST_ANS", letter_picture(ANSWER_WIDTH, "{Ans}"));
  product.add_image("MATRIX_ANS", letter_picture(ANSWER_WIDTH, "[Ans]"));
  for (int i = 0; i < 10; ++i)
    product.add_image("MATRIX_" + letter(i), letter_picture(LETTER_WIDTH, letter(i)));
}

}  // namespace art
