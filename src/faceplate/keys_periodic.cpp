// The key map of the periodic screen.

#include <iterator>

#include "engine/state.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"
#include "tools/dialogs/element_dialogs.h"

namespace zephyl {

namespace {

int leave(int) {
  set_mode(COMP_MODE, true);
  return KEY_DONE;
}

int show_table(int) {
  show_element_table();
  return KEY_DONE;
}

constexpr int FIRST_ELEMENT_KEY = 2;

int show_element(int key) {
  show_element_information(key - FIRST_ELEMENT_KEY);
  return KEY_DONE;
}

constexpr TKeyRow rows[] = {
    {0, 0, action(leave)},
    {1, 1, action(show_table)},
    {2, 110, action(show_element)},
    {111, 111, none},  // behind the last element there is none
};
static_assert(names_each_key(rows, 112));

}  // namespace

const TKeyMap periodic_key_map = {rows, std::size(rows)};

}  // namespace zephyl
