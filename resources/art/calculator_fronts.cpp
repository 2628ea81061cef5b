// The shell with the keys of the modes that have digits, and what is printed on it in each of them.

#include "caps.h"
#include "fronts.h"
#include "layout.h"
#include "legends.h"

namespace art {

namespace {

constexpr int FIRST_LARGE_KEY = 23;

const TCapColours& colours_of(const TSkin& skin, int key) {
  switch (key) {
    case 26:
    case 41:
      return skin.mode;
    case 27:
      return skin.clear;
    case 31:
    case 32:
    case 36:
    case 37:
      return skin.sign;
    case 42:
      return skin.enter;
    default:
      return key >= FIRST_LARGE_KEY && key < 43 ? skin.digit : skin.plain;
  }
}

// clang-format off
const TKeyLegend comp_legends[] = {
    {3, "(", "{", "", true}, {4, ")", "}", "", true},
    {5, "sin", "sin⁻¹"}, {6, "cos", "cos⁻¹"}, {7, "tan", "tan⁻¹"}, {8, "x⁻¹", "Const"}, {9, "x²", "Conv"}, {10, "RCL", "STO"},
    {11, "ln", "eˣ"}, {12, "log", "10ˣ"}, {13, "yˣ", "ˣ√y"}, {14, "√x", "Test"}, {15, "∛x", "x³"}, {16, "", "° ʳ ᵍ"},
    {17, "(−)", "π", "e"}, {18, "x!", "i"}, {19, ",", "abs"}, {20, "DEL", "Hist"}, {21, "", "⇤"}, {22, "", "⇥"},
    {23, "7", "d%", "%"}, {24, "8", "Text"}, {25, "9", "Func", "Var"}, {26, "", "Plot", "xtθ"}, {27, "", "Σ−", "Clr"},
    {28, "4"}, {29, "5"}, {30, "6"}, {31, "×"}, {32, "÷"},
    {33, "1"}, {34, "2"}, {35, "3"}, {36, "+"}, {37, "-"},
    {38, "0"}, {39, "."}, {40, "EXP"}, {41, "Ans"}, {42, "="},
};
const TKeyLegend base_legends[] = {
    {3, "(", "{", "", true}, {4, ")", "}", "", true},
    {5, "NOT", "mod"}, {6, "AND", "<<"}, {7, "OR", ">>"}, {8, "XOR"}, {9, "XNOR"}, {10, "RCL", "STO"},
    {11, "A"}, {12, "B"}, {13, "C"}, {14, "D"}, {15, "E"}, {16, "F"},
    {17, "d"}, {18, "h"}, {19, "b", "o"}, {20, "DEL"}, {21, "", "⇤"}, {22, "", "⇥"},
    {23, "7"}, {24, "8"}, {25, "9"}, {26, "Σ+", "Σ−"}, {27, "", "Clr"},
    {28, "4"}, {29, "5"}, {30, "6"}, {31, "×"}, {32, "÷"},
    {33, "1"}, {34, "2"}, {35, "3"}, {36, "+"}, {37, "-"},
    {38, "0"}, {39, "."}, {40, "EXP"}, {41, "Ans"}, {42, "="},
};
const TKeyLegend stat_legends[] = {
    {2, "Data"}, {3, "(", "{", "", true}, {4, ")", "}", "", true},
    {5, "Σxy"}, {6, "x\u0304w", "y\u0304w"}, {7, "x\u0302", "a"}, {8, "y\u0302", "b"}, {9, "", "r"}, {10, "RCL", "STO"},
    {11, "x\u0304", "y\u0304"}, {12, "Σx", "Σy"}, {13, "Σx²", "Σy²"}, {14, "σx", "σy"}, {15, "sx", "sy"}, {16, "n", "x min"},
    {17, "(−)", "x max"}, {18, "Σ−", "y min"}, {19, "ClrΣ", "y max"}, {20, "DEL"}, {21, "", "⇤"}, {22, "", "⇥"},
    {23, "7", "Sum"}, {24, "8", "Plot"}, {25, "9"}, {26, "Σ+"}, {27, "", "Clr"},
    {28, "4"}, {29, "5"}, {30, "6"}, {31, "×"}, {32, "÷"},
    {33, "1"}, {34, "2"}, {35, "3"}, {36, "+"}, {37, "-"},
    {38, "0"}, {39, "."}, {40, "EXP"}, {41, "Ans"}, {42, "="},
};
// clang-format on

TCanvas background(const TSkin& skin, int number) {
  TCanvas canvas = shell(skin, TAB_LINE_TOP, {DISPLAY_BOX});
  for (int key = 0; key <= 42; ++key)
    draw_cap(canvas, cap_box(calculator_key(key), number), colours_of(skin, key), skin);
  draw_cap(canvas, cap_box(calculator_key(49), number), skin.plain, skin);
  return canvas;
}

template <int COUNT>
TCanvas front(const TSkin& skin, const TKeyLegend (&legends)[COUNT]) {
  TCanvas canvas(FRONT_WIDTH, FRONT_HEIGHT);
  for (const TKeyLegend& legend : legends)
    draw_legend(canvas, calculator_key(legend.key), legend, skin, colours_of(skin, legend.key).print);
  return canvas;
}

}  // namespace

void add_calculator_fronts(TProduct& product) {
  for (int number = 0; number < SKIN_COUNT; ++number) {
    const TSkin& colours = skin(number);
    product.add_skinned("BACKGROUND_GIF", number, background(colours, number));
    product.add_skinned("CALCULATOR_GIF", number, front(colours, comp_legends));
    product.add_skinned("BASE_CALCULATOR_GIF", number, front(colours, base_legends));
    product.add_skinned("STAT_CALCULATOR_GIF", number, front(colours, stat_legends));
  }
}

}  // namespace art
