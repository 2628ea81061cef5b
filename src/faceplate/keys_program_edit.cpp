// The key map of program edit. The numbers that its keys give are statement codes, not tokens.

#include <iterator>

#include "faceplate/key_actions.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"

namespace zephyl {

namespace {

int press_program_tab(int key) {
  press_tab(key - 18);
  return KEY_DONE;
}

// first and last key, plain, blue
constexpr TKeyRow rows[] = {
    {0, 0, action(run_or_stop_program)},
    {1, 1, action(toggle_blue)},
    {2, 2, none},                  // cursor up, page up
    {3, 3, none},                  // cursor down, page down
    {4, 4, none},                  // delete the line
    {5, 5, none},                  // description
    {6, 6, none, token(106)},      // if, else
    {7, 7, none},                  // loop, func(
    {8, 8, none},                  // while, error
    {9, 9, token(9), token(109)},  // end, break
    {10, 10, none},                // in, text
    {11, 11, none},                // out, fout
    {12, 12, none, token(112)},    // label, return sub
    {13, 13, none},                // goto, gosub
    {14, 14, none, token(114)},    // call, return call
    {15, 15, none},                // in f(), f()
    {16, 16, none},                // the expression, the mark
    {17, 17, token(17)},           // stop, the menu
    {18, 23, action(press_program_tab)},
};
static_assert(names_each_key(rows, 24));

}  // namespace

const TKeyMap program_key_map = {rows, std::size(rows)};

}  // namespace zephyl
