#include "layout.h"

namespace art {

namespace {

constexpr int large_left[] = {3, 51, 99, 147, 194};

TBox small_key(int left, int top) { return box_at(left, top, SMALL_KEY_WIDTH, SMALL_KEY_HEIGHT); }

}  // namespace

TBox calculator_key(int row) {
  if (row == 49) return small_key(5, 72);
  if (row < 5) return small_key(44 + 39 * row, 72);
  if (row < 23) return small_key(5 + 39 * ((row - 5) % 6), 102 + 30 * ((row - 5) / 6));
  return box_at(large_left[(row - 23) % 5], 192 + 26 * ((row - 23) / 5), LARGE_KEY_WIDTH, LARGE_KEY_HEIGHT);
}

TBox program_key(int row) { return small_key(5 + 39 * (row % 6), 211 + 30 * (row / 6)); }

TBox plot_key(int row, bool is_3d) {
  if (row >= 20) return box_at(10 + 21 * (row - 20), 219, 19, 16);
  switch (row) {
    case 1:
      return {8, 242, 92, 260};
    case 2:
      return {8, 266, 92, 284};
    case 3:
      return is_3d ? TBox{97, 214, 121, 235} : TBox{97, 219, 121, 240};
    case 4:
      return is_3d ? TBox{126, 214, 150, 235} : TBox{126, 219, 150, 240};
    case 5:
      return is_3d ? TBox{98, 238, 149, 252} : TBox{98, 247, 149, 261};
    case 6:
      return is_3d ? TBox{98, 255, 149, 269} : TBox{98, 266, 149, 280};
    // The pad's caps are smaller than its keys, which touch one another and aren't even.
    case 7:
      return {182, 242, 209, 258};
    case 8:
      return {159, 241, 178, 259};
    case 9:
      return {213, 241, 232, 259};
    case 10:
      return {186, 214, 205, 235};
    case 11:
      return {186, 265, 205, 286};
    case 18:
      return {97, 271, 122, 286};
    default:
      return {126, 271, 151, 286};
  }
}

TBox list_key(int row) {
  static constexpr TBox boxes[] = {
      {99, 268, 140, 289},  {194, 268, 236, 289}, {3, 268, 45, 289},    {51, 268, 93, 289},
      {147, 268, 188, 289}, {22, 240, 112, 250},  {114, 240, 205, 250}, {228, 92, 238, 153},
      {228, 155, 238, 215}, {1, 240, 20, 250},    {207, 240, 226, 250}, {228, 71, 238, 90},
      {228, 217, 238, 236},
  };
  TBox box = {2, 252, 37, 262};
  if (row <= 18) box = boxes[row - 6];
  if (row >= 21 && row <= 30) box = box_at(42 + 20 * (row - 21), 252, 17, 11);
  return {box.left, box.top + 1, box.right, box.bottom + 1};
}

TBox alpha_key(int row) {
  if (row < 20) return box_at(9 + 22 * (row % 10), row < 10 ? 29 : 52, 19, 18);
  if (row < 29) return box_at(20 + 22 * (row - 20), 75, 19, 18);
  if (row < 36) return box_at(27 + 22 * (row - 29), 98, 19, 18);
  if (row == 36) return box_at(182, 97, 36, 18);
  if (row < 40) return box_at(31 + 59 * (row - 37), 123, 55, 18);
  return box_at(row == 40 ? 58 : 122, 147, 55, 18);
}

TBox periodic_key(int row) { return row == 0 ? TBox{62, 233, 84, 286} : TBox{62, 155, 84, 225}; }

TBox element_cell(int period, int group) {
  if (group > 18) return box_at(period == 6 ? 30 : 10, 65 + 16 * (group - 19), 18, 14);
  return box_at(198 - 20 * (period - 1), 3 + 16 * (group - 1), 18, 14);
}

}  // namespace art
