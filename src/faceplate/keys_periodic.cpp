// The key map of the periodic screen.

#include <iterator>

#include "engine/state.h"
#include "faceplate/key_maps.h"
#include "faceplate/key_path.h"
#include "faceplate/modes.h"

namespace zephyl {

namespace {

int leave(int) {
  set_mode(COMP_MODE, true);
  return KEY_DONE;
}

constexpr TKeyRow rows[] = {
    {0, 0, action(leave)},
    {1, 1, none},      // the table of all elements
    {2, 110, none},    // an element
    {111, 111, none},  // behind the last element there is none
};
static_assert(names_each_key(rows, 112));

}  // namespace

const TKeyMap periodic_key_map = {rows, std::size(rows)};

}  // namespace zephyl
