// The periodic table, turned by a quarter: periods run from right to left, groups from top to bottom.

#include <cstddef>
#include <iterator>
#include <string>

#include "caps.h"
#include "fronts.h"
#include "layout.h"
#include "typefaces.h"

namespace art {

namespace {

constexpr const char* symbols[] = {
    "H",  "He", "Li", "Be", "B",  "C",  "N",  "O",  "F",  "Ne", "Na", "Mg", "Al", "Si", "P",  "S",
    "Cl", "Ar", "K",  "Ca", "Sc", "Ti", "V",  "Cr", "Mn", "Fe", "Co", "Ni", "Cu", "Zn", "Ga", "Ge",
    "As", "Se", "Br", "Kr", "Rb", "Sr", "Y",  "Zr", "Nb", "Mo", "Tc", "Ru", "Rh", "Pd", "Ag", "Cd",
    "In", "Sn", "Sb", "Te", "I",  "Xe", "Cs", "Ba", "La", "Ce", "Pr", "Nd", "Pm", "Sm", "Eu", "Gd",
    "Tb", "Dy", "Ho", "Er", "Tm", "Yb", "Lu", "Hf", "Ta", "W",  "Re", "Os", "Ir", "Pt", "Au", "Hg",
    "Tl", "Pb", "Bi", "Po", "At", "Rn", "Fr", "Ra", "Ac", "Th", "Pa", "U",  "Np", "Pu", "Am", "Cm",
    "Bk", "Cf", "Es", "Fm", "Md", "No", "Lr", "Rf", "Db", "Sg", "Bh", "Hs", "Mt"};
constexpr int ELEMENT_COUNT = static_cast<int>(std::size(symbols));

struct TPlace {
  int period;
  int group;  // 19 to 32 for the 14 elements that stand apart
};

// The last element of each period.
constexpr int period_ends[] = {2, 10, 18, 36, 54, 86, 118};

TPlace place_of(int number) {
  int period = 1;
  while (period_ends[period - 1] < number) ++period;
  const int column = number - (period == 1 ? 0 : period_ends[period - 2]),
            length = period_ends[period - 1] - number;
  if (period >= 6 && column > 3 && column <= 17) return {period, column + 15};
  // Up to group 2, in long periods group 3, elements count from the left, all others from the right.
  const int left_block = period == 1 ? 1 : period < 4 ? 2 : 3;
  return {period, column <= left_block ? column : 18 - length};
}

enum TFamily { ALKALI, EARTH, TRANSITION, METAL, METALLOID, NONMETAL, HALOGEN, NOBLE, LANTHANIDE, ACTINIDE };

struct TFamilyLook {
  const char* name;
  TColour colour;
};

constexpr TFamilyLook looks[] = {
    {"Alkali", 0xF29E8E},     {"Alk. earth", 0xF7C68B}, {"Transition", 0xF3E29A}, {"Metal", 0xC9D5DC},
    {"Metalloid", 0xA9D8C8},  {"Nonmetal", 0xA8DE98},   {"Halogen", 0x8ED4E8},    {"Noble gas", 0xA9BDF2},
    {"Lanthanide", 0xE5B5E8}, {"Actinide", 0xCFA6D8},
};

bool is_one_of(int number, std::initializer_list<int> numbers) {
  for (int candidate : numbers)
    if (candidate == number) return true;
  return false;
}

TFamily family_of(int number) {
  if (number >= 57 && number <= 71) return LANTHANIDE;
  if (number >= 89 && number <= 103) return ACTINIDE;
  if (is_one_of(number, {1, 6, 7, 8, 15, 16, 34})) return NONMETAL;
  if (is_one_of(number, {5, 14, 32, 33, 51, 52})) return METALLOID;
  const int group = place_of(number).group;
  if (group == 1) return ALKALI;
  if (group == 2) return EARTH;
  if (group == 17) return HALOGEN;
  if (group == 18) return NOBLE;
  return group <= 12 ? TRANSITION : METAL;
}

constexpr TColour PRINT = 0x14181C;
constexpr TColour NOTE = 0x8F9AA3;

void draw_element(TCanvas& canvas, int number) {
  const TPlace place = place_of(number);
  const TBox box = element_cell(place.period, place.group);
  const TColour colour = looks[family_of(number)].colour;
  draw_rounded(canvas, box, 2, mix(colour, 0x000000, 0.35));
  draw_rounded(canvas, {box.left, box.top, box.right, box.bottom - 1}, 2, colour);
  const TTypeface& face = typefaces().round;
  const TMask text = face.text(symbols[number - 1]);
  canvas.stamp(text, box.left + (box.width() - text.width()) / 2, box.top + 10 - face.baseline(), PRINT);
}

void draw_group_numbers(TCanvas& canvas) {
  for (int group = 1; group <= 18; ++group) {
    const TMask text = typefaces().tiny.label(std::to_string(group));
    const TBox cell = element_cell(1, group);
    canvas.stamp_centred(text, {cell.right + 3, cell.top, cell.right + 18, cell.bottom}, NOTE);
  }
}

void draw_families(TCanvas& canvas) {
  constexpr int LEFT = 159, TOP = 52, PITCH = 13;
  for (std::size_t i = 0; i < std::size(looks); ++i) {
    const int y = TOP + PITCH * static_cast<int>(i);
    draw_rounded(canvas, box_at(LEFT, y, 7, 7), 2, looks[i].colour);
    canvas.stamp(typefaces().tiny.label(looks[i].name), LEFT + 10, y, 0xC8D0D6);
  }
}

void draw_button(TCanvas& canvas, const TBox& box, const char* word, const TCapColours& colours) {
  draw_cap(canvas, box, colours, skin(DARK));
  canvas.stamp_centred(typefaces().narrow.label(word).quarter_turn(), box, colours.print);
}

}  // namespace

void add_periodic_screen(TProduct& product) {
  TCanvas canvas(FRONT_WIDTH, FRONT_HEIGHT, PANEL);
  canvas.shade({0, 0, FRONT_WIDTH - 1, FRONT_HEIGHT - 1}, 0x2B3238, 0x1C2126);
  for (int number = 1; number <= ELEMENT_COUNT; ++number) draw_element(canvas, number);
  draw_group_numbers(canvas);
  draw_families(canvas);
  draw_button(canvas, periodic_key(0), "COMP", {0xDDE4EA, 0xB2BFCA, 0xF5F8FA, 0x8C9BA8, 0x0E1113, PRINT});
  draw_button(canvas, periodic_key(1), "Data Table",
              {0xDDE4EA, 0xB2BFCA, 0xF5F8FA, 0x8C9BA8, 0x0E1113, PRINT});
  product.add_image("PERIODIC_GIF", canvas);
}

}  // namespace art
